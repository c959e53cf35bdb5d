#!/usr/bin/env bash
# Every text that the sources give to the translation stands in the English catalogue, translated, and no other.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
kept=resources/translations/zephantrajector_en.ts
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

cp "$kept" "$folder/catalogue.ts"
scripts/update_catalogue.sh "$folder/catalogue.ts"
if ! diff -u "$kept" "$folder/catalogue.ts" || grep -n unfinished "$kept"; then
    echo "The catalogue is not up to date: run scripts/update_catalogue.sh and translate what it marks unfinished."
    exit 1
fi
