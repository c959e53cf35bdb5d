<bgno> ========== BEGIN OBJECT ==========
	<acid> ---- registration ----
	F-GZEP
	<048a> ---- maximum cruise speed (knots) ----
	126
	<043a> ---- cruise speed (knots) ----
	122
	<045a> ---- rate of climb (feet a minute) ----
	730
	<044a> ---- approach speed (knots) ----
	65
	<CEIL> ---- ceiling (feet) ----
	13500
<endo> ========== END OBJECT ============
