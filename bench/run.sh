#!/usr/bin/env bash
# Benchmark quillmere-scan against find (the floor) and peer duplicate finders.
#
# usage: bench/run.sh [WORKDIR]            (default /tmp/quillmere-bench)
#
# Environment:
#   QUILLMERE_SCAN  scanner binary (default REPO/build/tools/quillmere-scan)
#   BENCH_FILES     files in the main tree     (default 200000)
#   BENCH_FOLDERS   folders in the main tree   (default 10000)
#   BENCH_LARGE     10-100 MB originals        (default 6)
#   BENCH_GROUPS    group tree sizes           (default "25000 50000 100000")
#   BENCH_RUNS      timed runs per command     (default 3)
#   BENCH_TIMEOUT   seconds allowed per run    (default 1800)
#
# Trees are built once and reused; results go to stdout and WORKDIR/results.md.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
repo=$(cd "$here/.." && pwd)
workdir=${1:-/tmp/quillmere-bench}
scan=${QUILLMERE_SCAN:-$repo/build/tools/quillmere-scan/quillmere-scan}
files=${BENCH_FILES:-200000}
folders=${BENCH_FOLDERS:-10000}
large=${BENCH_LARGE:-6}
groups_list=${BENCH_GROUPS:-25000 50000 100000}
runs=${BENCH_RUNS:-3}
limit=${BENCH_TIMEOUT:-1800}

[[ -x /usr/bin/time ]] || { echo "run.sh: GNU time (/usr/bin/time) is required" >&2; exit 1; }
mkdir -p "$workdir"
workdir=$(cd "$workdir" && pwd)

# Non-default sizes get their own folder so a reused tree always matches.
tree=$workdir/tree
if [[ $files != 200000 || $folders != 10000 || $large != 6 ]]; then
    tree=$workdir/tree-${files}f-${folders}d-${large}l
fi

# Build into a scratch folder and rename, so an interrupted build is never reused.
build() {  # build DEST generator-args...
    local dest=$1; shift
    [[ -d $dest ]] && return 0
    rm -rf -- "$dest.partial"
    python3 "$@" "$dest.partial" >&2
    mv -- "$dest.partial" "$dest"
}

build "$tree" "$here/make_tree.py" --files "$files" --folders "$folders" --large "$large"
for n in $groups_list; do
    build "$workdir/groups-$n" "$here/make_group_tree.py" --groups "$n"
done

scratch=$(mktemp -d "$workdir/run.XXXXXX")
trap 'rm -rf -- "$scratch"' EXIT

# measure LABEL CMD...: runs CMD $runs times under GNU time; CMD's stdout is
# discarded. Sets m_wall (median s), m_rss (max MB) and m_note.
measure() {
    local label=$1; shift
    local i rc walls=() rss=0 note=""
    # One untimed run first: the machine reclaims idle page cache within seconds, so a
    # cache warmed before the other tools ran may be cold again by this command's turn.
    (cd "$scratch/cwd" && timeout -k 10 "$limit" "$@" > /dev/null 2>&1) || true
    rm -rf -- "$scratch/cwd" && mkdir "$scratch/cwd"
    for ((i = 0; i < runs; i++)); do
        rc=0
        (cd "$scratch/cwd" && /usr/bin/time -v -o "$scratch/time.txt" \
            timeout -k 10 "$limit" "$@" > /dev/null 2> "$scratch/stderr.txt") || rc=$?
        if [[ $rc -eq 124 || $rc -eq 137 ]]; then
            note="timed out after ${limit}s"
        elif [[ $rc -ne 0 ]]; then
            note="exit $rc"
        fi
        walls+=("$(awk -F': ' '/Elapsed \(wall clock\)/ {
            n = split($2, p, ":"); s = 0
            for (k = 1; k <= n; k++) s = s * 60 + p[k]
            printf "%.2f", s }' "$scratch/time.txt")")
        rss=$(awk -v m="$rss" -F': ' '/Maximum resident set size/ {
            v = $2 / 1024; if (v > m) m = v } END { printf "%.1f", m }' "$scratch/time.txt")
        # rmlint and others must not leave files behind in the working folder.
        if [[ -n $(ls -A "$scratch/cwd") ]]; then
            note="${note:+$note; }wrote files into cwd"
            rm -rf -- "$scratch/cwd" && mkdir "$scratch/cwd"
        fi
    done
    m_wall=$(printf '%s\n' "${walls[@]}" | sort -g | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}')
    m_rss=$rss
    m_note=$note
    printf '  %-14s %8ss %8s MB %s\n' "$label" "$m_wall" "$m_rss" "$m_note" >&2
}

ratio() {  # ratio WALL FLOOR
    awk -v a="$1" -v b="$2" 'BEGIN { if (b > 0) printf "%.1fx", a / b; else print "n/a" }'
}

version() {  # first line of a tool's version output, best effort
    { "$@" 2>&1 || true; } | head -n 1 | tr -d '\r' | tr '|' '/' || true
}

mkdir "$scratch/cwd"
have_scan=0
[[ -x $scan ]] && have_scan=1

echo "Warming the page cache for $tree" >&2
find "$tree" -type f -exec cat {} + > /dev/null

tree_stats=$(find "$tree" -type f -printf '%s\n' | awk '{n++; b += $1} END {printf "%d files, %.1f MiB", n, b / 1048576}')
out=$scratch/results.md
{
    echo "# Quillmere scan benchmark"
    echo
    echo "- date: $(date -u '+%Y-%m-%d %H:%M UTC')"
    echo "- host: $(nproc) CPUs, $(awk -F': ' '/model name/ {print $2; exit}' /proc/cpuinfo), $(awk '/MemTotal/ {printf "%.1f GiB RAM", $2 / 1048576}' /proc/meminfo), kernel $(uname -r)"
    echo "- scanner: $scan"
    echo "- main tree: $tree ($tree_stats), warm cache (each command runs once untimed first), median of $runs runs"
    echo
    echo "| tool | median wall s | ratio to find | peak RSS MB | notes |"
    echo "|---|---:|---:|---:|---|"
} > "$out"

echo "Main tree: $tree" >&2
measure find find "$tree" -type f -printf '%s %p\n'
floor=$m_wall
echo "| find (floor) | $floor | 1.0x | $m_rss | $m_note |" >> "$out"

if ((have_scan)); then
    measure quillmere-scan "$scan" "$tree"
    echo "| quillmere-scan | $m_wall | $(ratio "$m_wall" "$floor") | $m_rss | $m_note |" >> "$out"
else
    echo "| quillmere-scan | - | - | - | not built ($scan) |" >> "$out"
fi

peer() {  # peer NAME CMD...
    local name=$1; shift
    if ! command -v "$name" > /dev/null; then
        echo "| $name | - | - | - | not installed |" >> "$out"
        return
    fi
    measure "$name" "$@"
    echo "| $name | $m_wall | $(ratio "$m_wall" "$floor") | $m_rss | $(version "$name" --version)${m_note:+; $m_note} |" >> "$out"
}
peer jdupes jdupes -r -q "$tree"
# Only the fdupes-format output, sent to /dev/null; no rmlint.sh/.json.
peer rmlint rmlint -o fdupes:/dev/null "$tree"
peer fdupes fdupes -r -q "$tree"

{
    echo
    echo "## Scan time against the number of groups (sparse pairs, warm cache, median of $runs runs)"
    echo
    echo "| pairs | groups found | files | find s | quillmere-scan s | us per group | peak RSS MB | notes |"
    echo "|---:|---:|---:|---:|---:|---:|---:|---|"
} >> "$out"
for n in $groups_list; do
    g=$workdir/groups-$n
    if ! ((have_scan)); then
        echo "| $n | - | $((2 * n)) | - | - | - | - | not built |" >> "$out"
        continue
    fi
    echo "Group tree: $g" >&2
    # One untimed pass caches metadata and the read ends of every file, and counts the
    # groups the scanner really forms (a few types share one type text).
    found=$(timeout -k 10 "$limit" "$scan" --json "$g" 2> /dev/null | tail -n 1 |
        python3 -c 'import json, sys; print(len(json.load(sys.stdin)["groups"]))' || echo 0)
    measure "find-$n" find "$g" -type f -printf '%s %p\n'
    group_floor=$m_wall
    measure "groups-$n" "$scan" "$g"
    per=$(awk -v w="$m_wall" -v n="$found" 'BEGIN { if (n > 0) printf "%.1f", w * 1e6 / n; else print "n/a" }')
    echo "| $n | $found | $((2 * n)) | $group_floor | $m_wall | $per | $m_rss | $m_note |" >> "$out"
done

cp "$out" "$workdir/results.md"
echo >&2
cat "$workdir/results.md"
