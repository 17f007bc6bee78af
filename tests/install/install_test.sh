#!/usr/bin/env bash
# Installs the build into a scratch prefix and starts what was installed, away from the build
# folder: both programs must find their default list in the installed share folder.
set -euo pipefail
build=$1
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" >/dev/null

for f in bin/quillane bin/quillane-cli share/quillane/default.ifs share/quillane/default.chg \
         share/quillane/help/index.html share/quillane/help/sierpinskiGame.html \
         share/applications/quillane.desktop share/icons/hicolor/scalable/apps/quillane.svg \
         share/man/man1/quillane-cli.1; do
  [ -e "$prefix/$f" ] || fail "$f is not installed"
done
[ ! -e "$prefix/bin/default.ifs" ] || fail "the lists belong in the share folder, not beside the programs"
grep -q '^Exec=quillane' "$prefix/share/applications/quillane.desktop" || fail "the desktop entry starts quillane"
grep -q '^Icon=quillane$' "$prefix/share/applications/quillane.desktop" || fail "the desktop entry names the icon"

cd "$prefix"  # nowhere near the build or the sources
out=$("$prefix/bin/quillane-cli" list) || fail "the installed quillane-cli could not list its default list"
[ "$(printf '%s\n' "$out" | wc -l)" -eq 11 ] || fail "the default list has eleven entries, got: $out"
printf '%s\n' "$out" | head -1 | grep -q "Sierpinski" || fail "the default list starts with the Sierpinski triangle"

home=$(mktemp -d)
name=$(HOME="$home" XDG_CONFIG_HOME="$home/.config" QT_QPA_PLATFORM=offscreen QUILLANE_REPORT_START=1 \
       timeout 60 "$prefix/bin/quillane") || fail "the installed quillane did not start"
rm -rf "$home"
[ "$name" = "$(printf '%s\n' "$out" | head -1 | cut -f2)" ] || fail "the installed quillane took '$name', not entry 1 of its default list"
echo "installed programs found their default list"
