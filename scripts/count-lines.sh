#!/usr/bin/env bash
# Counts the lines of code and of tests: the lines of the .cpp and .h files that are neither blank
# nor only a // comment. Code is src/ and assets/, tests are tests/; each layer is counted too,
# its tests against its code (tests/screen_2x with screen).
#
#   bash scripts/count-lines.sh
set -euo pipefail
cd "$(dirname "$0")/.."

count() { # folder...: the counted lines of every .cpp and .h under them
    local folders=()
    for f in "$@"; do
        [ -d "$f" ] && folders+=("$f")
    done
    if [ ${#folders[@]} -eq 0 ]; then
        echo 0
        return
    fi
    find "${folders[@]}" -type f \( -name '*.cpp' -o -name '*.h' \) -print0 |
        xargs -0 -r cat | grep -Evc '^[[:space:]]*(//.*)?$' || true
}

ratio() { # tests, code
    awk -v t="$1" -v c="$2" 'BEGIN { if (c > 0) printf "%.2f", t / c; else printf "-" }'
}

code=$(count src assets)
tests=$(count tests)
printf '%-10s %7s %7s %6s\n' layer code tests ratio
for dir in src/*/ assets/; do
    layer=$(basename "$dir")
    if [ "$layer" = screen ]; then
        t=$(count tests/screen tests/screen_2x)
    else
        t=$(count "tests/$layer")
    fi
    c=$(count "$dir")
    printf '%-10s %7d %7d %6s\n' "$layer" "$c" "$t" "$(ratio "$t" "$c")"
done
# Helpers shared by the tests of several layers.
printf '%-10s %7s %7d\n' support - "$(count tests/support)"
printf '%-10s %7d %7d %6s\n' total "$code" "$tests" "$(ratio "$tests" "$code")"
