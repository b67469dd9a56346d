#!/bin/sh
# convert_sample.sh RUN_ENGINE: upgrades and converts a copy of the sample project with the driver of the build at hand, and
# compares every file with the results that are checked in.
set -eu
engine=$1
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$root/samples/Bookshop" "$work/Bookshop"
chmod -R u+w "$work"

run() {
    case $engine in
    *.exe)
        folder=Z:$(printf %s "$work" | tr / '\\')
        "$root/scripts/wine-run" "$engine" "$1" --project "$folder\\Bookshop\\Bookshop.vbp" --json "$folder\\run.json"
        ;;
    *) "$engine" "$1" --root "$work" --drive C: --project 'C:\Bookshop\Bookshop.vbp' --json "$work/run.json" ;;
    esac
    grep -q '"result":true' "$work/run.json"
    grep -q '"boxes":\[\]' "$work/run.json"
}

same() {
    (cd "$root/samples/$1" && find . -type f) | while read -r file; do
        cmp "$root/samples/$1/$file" "$work/Bookshop/$file"
    done
}

run upgrade
same Bookshop.upgraded
run convert
same Bookshop.converted
