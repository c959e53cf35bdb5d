#!/usr/bin/env bash
# Takes new texts of the sources into the English catalogue, for somebody to translate, and drops those that are gone.
#
#   scripts/update_catalogue.sh [CATALOGUE]    CATALOGUE: default resources/translations/zephantrajector_en.ts
set -euo pipefail

catalogue=$(realpath "${1:-$(dirname "${BASH_SOURCE[0]}")/../resources/translations/zephantrajector_en.ts}")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
lupdate=$(command -v lupdate-qt5 lupdate | head -n 1) || { echo 'update_catalogue.sh: no lupdate' >&2; exit 1; }
# Without the places in the sources: they would change with every edit.
"$lupdate" -silent -no-obsolete -locations none source ZephanCommon tools/launcher -ts "$catalogue"
