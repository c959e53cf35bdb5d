# Figures of the bench programs, one a line as printFigure writes them, as one table: ratios first.
BEGIN {
    FS = "\t"
}

$1 == "figure" {
    verdict = $6 == "" ? "" : $4 + 0 <= $6 + 0 ? "kept" : "MISSED"
    row = sprintf("| %s | %s | %s | %s | %s | %s |\n", $2, $3, rounded($4), $5, $6, verdict)
    if ($5 == "") {
        ratios = ratios row
    } else {
        others = others row
    }
}

END {
    print "| Of | Figure | Value | Unit | Goal, at most | |"
    print "|---|---|---:|---|---:|---|"
    printf "%s%s", ratios, others
}

function rounded(value) {
    return sprintf(value >= 100 || value <= -100 ? "%.0f" : value >= 10 || value <= -10 ? "%.1f" : "%.2f", value)
}
