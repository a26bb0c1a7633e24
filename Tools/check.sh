#!/usr/bin/env bash
# Everything a change is judged by, quickest first: format, layers, build and tests; with the word `tidy` clang-tidy too.
set -euo pipefail

# shellcheck source=Tools/build.sh
source "$(dirname "${BASH_SOURCE[0]}")/build.sh"

"$root/Tools/install_dependencies.sh" check test

git -C "$root" ls-files -z -- '*.h' '*.cpp' \
    | (cd "$root" && xargs --null --no-run-if-empty clang-format-14 --dry-run -Werror)

python3 "$root/Tools/check_layers.py"
"$root/test"

if [[ ${1:-} == tidy ]]; then
    "$root/Tools/install_dependencies.sh" tidy
    run-clang-tidy-14 -quiet -p "$root/build/release" "^$root/(Source|Tests|Tools|Benchmarks)/"
fi
