#!/usr/bin/env bash
# Builds the Debian package from a finished build and checks it as a user and Debian's
# archive would: the files it holds, the libraries dpkg-shlibdeps found, no lintian error,
# icons of the sizes their folders name, and programs that run from the unpacked package.
set -euo pipefail
build_dir=$(realpath "$1")
here=$(dirname "$(realpath "$0")")
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
fail() { echo "package check: $*" >&2; exit 1; }
for tool in cpack dpkg-deb dpkg-shlibdeps lintian; do
    command -v "$tool" > /dev/null || fail "$tool is missing; tools/install-deps.sh installs it"
done

cpack -G DEB --config "$build_dir/CPackConfig.cmake" -B "$work" > "$work/cpack.log" 2>&1 ||
    { cat "$work/cpack.log"; fail "cpack could not build the package"; }
debs=("$work"/quillmere_*.deb)
deb=${debs[0]}
[ -f "$deb" ] || fail "cpack made no quillmere_*.deb"

# Every file but the translations, which come and go with the languages the build has.
dpkg-deb -c "$deb" | awk '{ print $6 }' | sed 's,^\./,/,' > "$work/entries"
grep -v '/$' "$work/entries" | grep -v '^/usr/share/quillmere/translations/' | sort \
    > "$work/files"
diff -u "$here/expected-files.txt" "$work/files" || fail "the package's files differ (above)"
grep -qx '/usr/share/quillmere/translations/' "$work/entries" ||
    fail "no folder for translations"
for qm in "$build_dir"/translations/*.qm; do
    [ -e "$qm" ] || continue
    grep -qx "/usr/share/quillmere/translations/$(basename "$qm")" "$work/entries" ||
        fail "$(basename "$qm") was built but is not in the package"
done

depends=$(dpkg-deb -f "$deb" Depends)
for library in libc6 libqt6core6 libqt6gui6 libqt6widgets6 libqt6svg6 libqt6dbus6; do
    [[ $depends == *"$library "* || $depends == *"$library," || $depends == *"$library" ]] ||
        fail "Depends lacks $library: $depends"
done

lintian_status=0
lintian --fail-on error "$deb" > "$work/lintian.log" 2>&1 || lintian_status=$?
grep -v 'running with root privileges' "$work/lintian.log" || true
[ "$lintian_status" -eq 0 ] || fail "lintian reports errors (above)"

dpkg-deb -x "$deb" "$work/root"
root=$work/root/usr
for icon in "$root"/share/icons/hicolor/*x*/apps/*.png; do
    size=$(basename "$(dirname "$(dirname "$icon")")")
    file "$icon" | grep -q "PNG image data, ${size/x/ x }," || fail "$icon is not $size"
done
version=$("$root/bin/quillmere-scan" --version)
[ "$version" = "quillmere-scan $(dpkg-deb -f "$deb" Version)" ] || fail "scanner says $version"
"$root/bin/quillmere" --version > /dev/null || fail "quillmere does not start"
zcat "$root/share/man/man1/quillmere-scan.1.gz" | grep -q '^\.SH EXIT STATUS' ||
    fail "the scanner's manual page is not readable"
echo "package $(basename "$deb"): files, dependencies, lintian and programs checked"
