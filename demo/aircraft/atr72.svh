<bgno> ========== BEGIN OBJECT ==========
	<acid> ---- registration ----
	F-GVZL
	<048a> ---- maximum cruise speed (knots) ----
	276
	<043a> ---- cruise speed (knots) ----
	270
	<045a> ---- rate of climb (feet a minute) ----
	1355
	<044a> ---- approach speed (knots) ----
	115
	<CEIL> ---- ceiling (feet) ----
	25000
<endo> ========== END OBJECT ============
