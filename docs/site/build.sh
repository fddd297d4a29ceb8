#!/usr/bin/env bash
# usage: build.sh BUILD: the site, in BUILD/site. The target `site` calls it.
# SAMPLE is the number of random operands for each panel of a picture.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/../.."
# shellcheck source=tools/prerequisites.sh
. tools/prerequisites.sh
require mkdocs mkdocs-material gnuplot-nox

work=$build/site.work
rm -rf "$work"
mkdir -p "$work/pictures"
"$build/grid_outputs" json >"$work/families.json"
"$build/tools/accuracy" --all --random 0 --picture "$work/pictures" --sample "${SAMPLE:-20000}"
python3 docs/site/pages.py . "$work/families.json" "$work/pictures" "$build/bench/performance.csv" "$work/pages"
mkdocs build --quiet --strict --config-file "$work/pages.yml" --site-dir "$build/site"
python3 docs/site/links.py "$build/site"
echo "The site is $build/site; its search needs a server: python3 -m http.server -d $build/site"
