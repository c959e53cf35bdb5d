<bgno> ========== BEGIN OBJECT ==========
	<acid> ---- registration ----
	F-HZPH
	<048a> ---- maximum cruise speed (knots) ----
	487
	<043a> ---- cruise speed (knots) ----
	450
	<045a> ---- rate of climb (feet a minute) ----
	2500
	<044a> ---- approach speed (knots) ----
	137
	<CEIL> ---- ceiling (feet) ----
	39800
<endo> ========== END OBJECT ============
