#!/usr/bin/env bash
# Times quillmere-scan against find -printf (the floor) and the Debian duplicate finders
# on one tree, cold (page cache dropped before every run) and warm, in alternating rounds
# so that the machine's noise falls on every command alike.
#
# usage: bench/cold_warm.sh TREE [cold|warm|both]   (run as root for the cold rounds)
#
# Environment:
#   QUILLMERE_SCAN  scanner binary (default REPO/build/tools/quillmere-scan/quillmere-scan)
#   BENCH_ROUNDS    rounds of every command (default 5)
#   BENCH_PEERS     0 to leave out the peers (default 1)
#
# Every peer gets the same size filter as the scanner (files above 64 KiB) and writes
# nothing into the tree or the working folder.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
repo=$(cd "$here/.." && pwd)
tree=${1:?usage: cold_warm.sh TREE [cold|warm|both]}
modes=${2:-both}
scan=${QUILLMERE_SCAN:-$repo/build/tools/quillmere-scan/quillmere-scan}
rounds=${BENCH_ROUNDS:-5}
peers=${BENCH_PEERS:-1}
[[ $modes == both ]] && modes="cold warm"

scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
cd "$scratch"

names=(find quillmere-scan quillmere-scan-1thread)
commands=("find $tree -printf %s\\t%p\\n"
          "$scan $tree"
          "$scan --single-thread $tree")
if ((peers)); then
    command -v jdupes > /dev/null && { names+=(jdupes); commands+=("jdupes -r -q -X size+:65536 $tree"); }
    command -v rdfind > /dev/null && { names+=(rdfind); commands+=("rdfind -minsize 65537 -dryrun true -makeresultsfile false $tree"); }
    command -v rmlint > /dev/null && { names+=(rmlint); commands+=("rmlint --size 65537 -o fdupes:/dev/null $tree"); }
    command -v fdupes > /dev/null && { names+=(fdupes); commands+=("fdupes -r -q -G 65537 $tree"); }
fi

drop_caches() {
    sync
    echo 3 > /proc/sys/vm/drop_caches
}

for mode in $modes; do
    if [[ $mode == cold && ! -w /proc/sys/vm/drop_caches ]]; then
        echo "cold rounds need root to drop the page cache; skipped" >&2
        continue
    fi
    declare -A walls=() rss=()
    [[ $mode == warm ]] && for c in "${commands[@]}"; do $c > /dev/null 2>&1 || true; done
    for ((round = 0; round < rounds; round++)); do
        n=${#commands[@]}
        for ((k = 0; k < n; k++)); do
            i=$(((k + round) % n)) # each round starts with another command
            [[ $mode == cold ]] && drop_caches
            /usr/bin/time -f '%e %M' -o time.txt ${commands[$i]} > /dev/null 2>&1 || true
            read -r wall kb < time.txt
            walls[${names[$i]}]+="$wall "
            ((kb > ${rss[${names[$i]}]:-0})) && rss[${names[$i]}]=$kb
        done
    done
    floor=$(printf '%s\n' ${walls[find]} | sort -g | awk '{v[NR]=$1} END {print v[int((NR+1)/2)]}')
    echo "## $mode cache, $rounds alternating rounds, $(date -u '+%Y-%m-%d %H:%M UTC'), $tree"
    echo
    echo "| command | median s | runs s | ratio to find | peak RSS MB |"
    echo "|---|---:|---|---:|---:|"
    for name in "${names[@]}"; do
        median=$(printf '%s\n' ${walls[$name]} | sort -g | awk '{v[NR]=$1} END {print v[int((NR+1)/2)]}')
        ratio=$(awk -v a="$median" -v b="$floor" 'BEGIN { printf "%.2f", a / b }')
        echo "| $name | $median | ${walls[$name]}| $ratio | $(awk -v k="${rss[$name]}" 'BEGIN { printf "%.0f", k / 1024 }') |"
    done
    echo
    unset walls rss
done
