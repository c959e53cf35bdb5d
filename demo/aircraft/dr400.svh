<bgno> ========== BEGIN OBJECT ==========
	<acid> ---- registration ----
	F-GTRJ
	<048a> ---- maximum cruise speed (knots) ----
	148
	<043a> ---- cruise speed (knots) ----
	137
	<045a> ---- rate of climb (feet a minute) ----
	825
	<044a> ---- approach speed (knots) ----
	70
	<CEIL> ---- ceiling (feet) ----
	15470
<endo> ========== END OBJECT ============
