<bgno> ========== BEGIN OBJECT ==========
	<acid> ---- registration ----
	F-GAEO
	<048a> ---- maximum cruise speed (knots) ----
	165
	<043a> ---- cruise speed (knots) ----
	160
	<045a> ---- rate of climb (feet a minute) ----
	1260
	<044a> ---- approach speed (knots) ----
	80
	<CEIL> ---- ceiling (feet) ----
	20000
<endo> ========== END OBJECT ============
