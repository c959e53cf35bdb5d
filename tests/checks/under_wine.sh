#!/usr/bin/env bash
# Runs a Windows program under wine and passes its exit code on. The program prints its checks and "0 failures".
#
#   under_wine.sh WINE PROGRAM    wine's own files lie beside the program while it runs
set -euo pipefail

wine=$1
program=$2
output=${program%.exe}.txt

# Wine's server outlives the program for some seconds with its outputs open: to a file, or the caller would wait on it.
result=0
"$(dirname "${BASH_SOURCE[0]}")/with_wine.sh" "$wine" "${program%.exe}-wine" \
    timeout 240 "$wine" "$program" >"$output" 2>&1 </dev/null || result=$?
cat "$output"
grep -q '^0 failures' "$output" || result=1
exit "$result"
