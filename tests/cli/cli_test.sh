#!/usr/bin/env bash
# Drives quillane-cli as a script would: outputs, files and exit codes.
set -u
cli="$1"
data="$2"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

check() {  # check NAME CONDITION...
    local name="$1"
    shift
    if "$@"; then echo "ok   $name"; else echo "FAIL $name"; failures=$((failures + 1)); fi
}
status() {  # status EXPECTED COMMAND...: runs the command, keeping its output
    local expected="$1"
    shift
    "$@" >"$work/out" 2>"$work/err"
    [ "$?" -eq "$expected" ]
}

check "help exits 0 and names every command" status 0 "$cli" --help
check "help text" grep -q "render FILE \[--entry N\]" "$work/out"
check "no command is bad usage" status 2 "$cli"
check "unknown command is bad usage" status 2 "$cli" frobnicate
check "render without -o is bad usage" status 2 "$cli" render "$data/default.ifs"
check "render to an unknown picture type is bad usage" status 2 "$cli" render "$data/default.ifs" -o "$work/x.tif"
check "bad --window is bad usage" status 2 "$cli" render "$data/default.ifs" --window 1,0,0,1 -o "$work/x.png"

check "generate box writes a one-entry list" status 0 "$cli" generate box --n 3 --remove "2,2" -o "$work/carpet.ifs"
check "the generated list reads back with eight maps" test "$("$cli" list "$work/carpet.ifs")" = "$(printf '1\tUntitled\t8')"
check "a refused generator input exits 1" status 1 "$cli" generate box --remove "1,1 1,2 2,1 2,2" -o "$work/none.ifs"
check "with the window's message" grep -q "You cannot remove all the boxes" "$work/err"
check "and writes no file" test ! -e "$work/none.ifs"
check "an unknown generator is bad usage" status 2 "$cli" generate frobnicate -o "$work/x.ifs"

check "list default.ifs" status 0 "$cli" list "$data/default.ifs"
check "first line: number TAB name TAB maps" test "$(head -1 "$work/out")" = "$(printf '1\tSierpinski triangle\t3')"
check "list names eleven entries" test "$(wc -l <"$work/out")" -eq 11
check "list default.chg through the chaos game reader" status 0 "$cli" list "$data/default.chg"
check "chaos list first line" test "$(head -1 "$work/out")" = "$(printf '1\tSierpinski triangle\t3')"

check "list without FILE reads the default list beside the program" status 0 "$cli" list
check "the default list is data/default.ifs" test "$(cat "$work/out")" = "$("$cli" list "$data/default.ifs")"
check "list with two files is bad usage" status 2 "$cli" list "$data/default.ifs" "$data/default.chg"
check "missing file exits 1" status 1 "$cli" list "$work/none.ifs"
check "missing file message on stderr" grep -q "This file cannot be found" "$work/err"

printf 'x {\n0.5 0 0 0.5\n}\n' >"$work/short.ifs"
check "short row exits 1" status 1 "$cli" list "$work/short.ifs"
check "short row message names the IFS" grep -q 'the IFS with name "x"' "$work/err"
head -c 3000 /dev/urandom | tr -d '{' >"$work/garbage.ifs"
check "garbage exits 1" status 1 "$cli" list "$work/garbage.ifs"
check "garbage message" grep -q "No valid functions found in this file" "$work/err"

check "save as ifs" status 0 "$cli" save "$data/default.ifs" "$work/copy.ifs"
"$cli" list "$data/default.ifs" >"$work/a"
"$cli" list "$work/copy.ifs" >"$work/b"
check "saved list reads back the same" cmp -s "$work/a" "$work/b"
check "saved rows use six decimals" grep -q "^   0.500000  0.000000  0.000000  0.500000  0.000000  0.000000  0.33" "$work/copy.ifs"
check "save chaos list" status 0 "$cli" save "$data/default.chg" "$work/copy.chg"
"$cli" list "$data/default.chg" >"$work/a"
"$cli" list "$work/copy.chg" >"$work/b"
check "saved chaos list reads back the same" cmp -s "$work/a" "$work/b"

check "render a PNG" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 -o "$work/t.png"
check "render reports its speed" grep -Eq "^20000 points in [0-9.]+ s \([0-9]+ points/s\)$" "$work/err"
check "PNG signature" test "$(head -c 4 "$work/t.png" | od -An -c | tr -d ' ')" = "211PNG"
check "render a BMP with a window" status 0 "$cli" render "$data/default.ifs" --entry 3 --window -3,3,0,10 --size 32 --points 1000 -o "$work/t.bmp"
check "BMP signature" test "$(head -c 2 "$work/t.bmp")" = "BM"
check "render a GIF" status 0 "$cli" render "$data/default.ifs" --points 5000 --size 32 -o "$work/t.gif"
check "GIF signature" test "$(head -c 3 "$work/t.gif")" = "GIF"
check "render a JPEG" status 0 "$cli" render "$data/default.ifs" --points 5000 --size 32 -o "$work/t.jpg"
check "pinned seed repeats the picture" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 -o "$work/u.png"
check "same picture twice" cmp -s "$work/t.png" "$work/u.png"
check "entry beyond the list exits 1" status 1 "$cli" render "$data/default.ifs" --entry 30 -o "$work/v.png"
count=$("$cli" list "$data/default.ifs" | wc -l)
check "entry 99 names the list's own range" status 1 "$cli" render "$data/default.ifs" --entry 99 -o "$work/v.png"
check "the range message" grep -qx -- "--entry must be from 1 to $count: $data/default.ifs has $count entries" "$work/err"
printf 'grow {\n2 0 0 2 1 1 1\n}\n' >"$work/grow.ifs"
check "expanding IFS exits 1" status 1 "$cli" render "$work/grow.ifs" --window 0,1,0,1 -o "$work/g.png"
check "overflow message" grep -q "Overflow error." "$work/err"

check "deterministic render" status 0 "$cli" render "$data/default.ifs" --deterministic --levels 4 --figure triangle --size 64 --window 0,1,0,1 -o "$work/d.png"
check "deterministic render reports its levels" grep -Eq "^4 levels of 64x64 in [0-9.]+ s$" "$work/err"
check "deterministic PNG signature" test "$(head -c 4 "$work/d.png" | od -An -c | tr -d ' ')" = "211PNG"
"$cli" render "$data/default.ifs" --deterministic --levels 4 --figure triangle --size 64 --window 0,1,0,1 -o "$work/e.png" 2>/dev/null
check "deterministic picture repeats" cmp -s "$work/d.png" "$work/e.png"
"$cli" render "$data/default.ifs" --deterministic --levels 4 --figure circle --size 64 --window 0,1,0,1 -o "$work/f.png" 2>/dev/null
check "another figure gives another picture" test -n "$(cmp "$work/d.png" "$work/f.png" 2>&1)"
for fig in polygon line square; do
    check "deterministic figure $fig" status 0 "$cli" render "$data/default.ifs" --deterministic --figure "$fig" --levels 2 --size 48 -o "$work/$fig.bmp"
done
check "levels without --deterministic is bad usage" status 2 "$cli" render "$data/default.ifs" --levels 3 -o "$work/x.png"
check "unknown figure is bad usage" status 2 "$cli" render "$data/default.ifs" --deterministic --figure hexagon -o "$work/x.png"
check "too many levels is bad usage" status 2 "$cli" render "$data/default.ifs" --deterministic --levels 101 -o "$work/x.png"

check "a picture as the initial set" status 0 "$cli" render "$data/default.ifs" --deterministic --levels 0 --initial "$work/d.png" --size 64 -o "$work/i0.png"
check "level 0 is the picture itself" cmp -s "$work/d.png" "$work/i0.png"
check "levels of a picture" status 0 "$cli" render "$data/default.ifs" --deterministic --levels 2 --initial "$work/d.png" --size 64 -o "$work/i2.png"
check "a level changes the picture" test -n "$(cmp "$work/i0.png" "$work/i2.png" 2>&1)"
check "a background under a random drawing" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --initial "$work/d.png" -o "$work/b.png"
check "the background shows" test -n "$(cmp "$work/u.png" "$work/b.png" 2>&1)"
check "an unreadable picture exits 1" status 1 "$cli" render "$data/default.ifs" --deterministic --initial "$data/default.ifs" -o "$work/x.png"
check "figure and initial picture is bad usage" status 2 "$cli" render "$data/default.ifs" --deterministic --figure line --initial "$work/d.png" -o "$work/x.png"

check "print the text of an entry" status 0 "$cli" print "$data/default.ifs" --entry 1 -o "$work/p.txt"
check "the matrix form heads the text" test "$(head -1 "$work/p.txt")" = "Matrix Form"
check "its first row" grep -qxF -- "(1)   0.500000   0.000000   0.000000   0.500000  |  0.000000   0.000000  | 0.333000" "$work/p.txt"
check "the scale/rotation form follows" grep -qx "Scale/Rotation Form" "$work/p.txt"
check "no chaos game rules for an IFS file" test -z "$(grep 'Chaos Game Rules' "$work/p.txt")"
check "a chaos game file prints its rules" status 0 "$cli" print "$data/default.chg" --text rules -o "$work/r.txt"
check "the rules in words" grep -qx "scale by 0.5      fixed point:  (1, 0)" "$work/r.txt"
check "pictures in a text file is bad usage" status 2 "$cli" print "$data/default.ifs" --what fractal -o "$work/x.txt"
check "an unknown part is bad usage" status 2 "$cli" print "$data/default.ifs" --text poems -o "$work/x.txt"
check "an unknown output type is bad usage" status 2 "$cli" print "$data/default.ifs" -o "$work/x.doc"
check "print entry beyond the list exits 1" status 1 "$cli" print "$data/default.ifs" --entry 99 -o "$work/x.txt"
check "a PDF with pictures and text" status 0 "$cli" print "$data/default.ifs" --points 20000 --size 200 --seed 3 -o "$work/p.pdf"
check "it is a PDF" test "$(head -c 5 "$work/p.pdf")" = "%PDF-"
if command -v pdfinfo >/dev/null 2>&1; then
  check "the PDF reader reads one Letter page" sh -c "pdfinfo '$work/p.pdf' | grep -q 'Pages: *1' && pdfinfo '$work/p.pdf' | grep -q '612 x 792'"
  check "side by side lying across" status 0 "$cli" print "$data/default.ifs" --side-by-side --landscape --inches 4 --points 2000 --size 100 -o "$work/l.pdf"
  check "the landscape page" sh -c "pdfinfo '$work/l.pdf' | grep -q '792 x 612'"
fi
check "side by side too wide for the paper exits 1" status 1 "$cli" print "$data/default.ifs" --side-by-side --inches 4 --points 2000 --size 100 -o "$work/w.pdf"
check "the paper-width warning" grep -q "The paper is not wide enough for" "$work/err"
for mode in ifs height width radial fixed-points random visits; do
    check "colour mode $mode" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --colors "$mode" -o "$work/c-$mode.png"
done
check "the default colours are the ifs mode" cmp -s "$work/t.png" "$work/c-ifs.png"
for mode in height width radial fixed-points random visits; do
    check "mode $mode gives its own picture" test -n "$(cmp "$work/c-ifs.png" "$work/c-$mode.png" 2>&1)"
done
"$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --colors visits -o "$work/c-visits2.png" 2>/dev/null
check "visit counts repeat with a pinned seed" cmp -s "$work/c-visits.png" "$work/c-visits2.png"
printf '2\n0,0,0,0\n0,0,255,10\n0,0,0,0\n0,0,0,0\n0,0,0,0\n0,0,0,0\n0,0,0,0\n' >"$work/g.txt"
check "a gradient file" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --colors height --gradient "$work/g.txt" -o "$work/c-g.png"
check "the gradient file changes the colours" test -n "$(cmp "$work/c-height.png" "$work/c-g.png" 2>&1)"
printf 'x\n' >"$work/bad.txt"
check "a broken gradient file exits 1" status 1 "$cli" render "$data/default.ifs" --colors height --gradient "$work/bad.txt" -o "$work/x.png"
for k in $(seq 100); do echo "0,128,0"; done >"$work/p.map"
check "a .map palette" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --palette "$work/p.map" -o "$work/c-p.png"
check "the palette changes the colours" test -n "$(cmp "$work/c-ifs.png" "$work/c-p.png" 2>&1)"
for k in $(seq 100); do echo "32768"; done >"$work/p.ifp"
"$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --palette "$work/p.ifp" -o "$work/c-q.png" 2>/dev/null
check "an .ifp palette reads the same colour" cmp -s "$work/c-p.png" "$work/c-q.png"
check "colour stealing" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --colors steal --steal "$work/c-radial.png" -o "$work/c-s.png"
check "stealing with a named colouring IFS" status 0 "$cli" render "$data/default.ifs" --points 20000 --size 64 --seed 1 --colors steal --steal "$work/c-radial.png" --steal-ifs "$data/default.ifs:1" -o "$work/c-s1.png"
check "another colouring IFS, another picture" test -n "$(cmp "$work/c-s.png" "$work/c-s1.png" 2>&1)"
check "a colouring IFS of another size exits 1" status 1 "$cli" render "$data/default.ifs" --points 2000 --colors steal --steal "$work/c-radial.png" --steal-ifs "$data/default.ifs:2" -o "$work/x.png"
check "with the message of the stealing window" grep -q "have the same number of functions." "$work/err"
check "an unreadable stealing picture exits 1" status 1 "$cli" render "$data/default.ifs" --colors steal --steal "$data/default.ifs" -o "$work/x.png"
check "a deterministic gradient" status 0 "$cli" render "$data/default.ifs" --deterministic --levels 3 --figure square --size 64 --colors width -o "$work/c-dw.png"
"$cli" render "$data/default.ifs" --deterministic --levels 3 --figure square --size 64 -o "$work/c-di.png" 2>/dev/null
check "differs from the IFS colours" test -n "$(cmp "$work/c-di.png" "$work/c-dw.png" 2>&1)"
check "unknown mode is bad usage" status 2 "$cli" render "$data/default.ifs" --colors plaid -o "$work/x.png"
check "the reason is one line" test "$(head -1 "$work/err")" = "quillane-cli: --colors needs ifs, height, width, radial, fixed-points, random, visits or steal"
check "steal without a picture is bad usage" status 2 "$cli" render "$data/default.ifs" --colors steal -o "$work/x.png"
check "a picture without steal is bad usage" status 2 "$cli" render "$data/default.ifs" --steal "$work/c-radial.png" -o "$work/x.png"
check "a colouring IFS without a picture is bad usage" status 2 "$cli" render "$data/default.ifs" --colors height --steal-ifs "$data/default.ifs:1" -o "$work/x.png"
check "a broken --steal-ifs is bad usage" status 2 "$cli" render "$data/default.ifs" --colors steal --steal "$work/c-radial.png" --steal-ifs "$data/default.ifs" -o "$work/x.png"
check "a gradient with the IFS colours is bad usage" status 2 "$cli" render "$data/default.ifs" --gradient "$work/g.txt" -o "$work/x.png"
check "a palette with a gradient mode is bad usage" status 2 "$cli" render "$data/default.ifs" --colors radial --palette "$work/p.map" -o "$work/x.png"
check "a palette of another kind is bad usage" status 2 "$cli" render "$data/default.ifs" --palette "$work/g.txt" -o "$work/x.png"
check "visit counts are not offered deterministically" status 2 "$cli" render "$data/default.ifs" --deterministic --colors visits -o "$work/x.png"
check "nor colour stealing" status 2 "$cli" render "$data/default.ifs" --deterministic --colors steal --steal "$work/c-radial.png" -o "$work/x.png"
check "a picture initial set keeps its colours" status 2 "$cli" render "$data/default.ifs" --deterministic --colors height --initial "$work/d.png" -o "$work/x.png"
check "bench in a colour mode" status 0 "$cli" --bench --points 20000 --size 64 --colors visits
check "bench names its mode" grep -q "random engine, visits colours,   3 maps" "$work/out"
check "bench with an unknown mode is bad usage" status 2 "$cli" --bench --colors plaid

# Movies: the morph, the rotation movie and the deterministic movie as GIFs, read back by gif-info and
# by an independent reader.
check "movie without -o is bad usage" status 2 "$cli" movie "$data/default.ifs:1" "$data/default.ifs:3"
check "movie with one file is bad usage" status 2 "$cli" movie "$data/default.ifs:1" -o "$work/m.gif"
check "--rotate of two IFS is bad usage" status 2 "$cli" movie "$data/default.ifs:1" "$data/default.ifs:3" --rotate 2 -o "$work/m.gif"
check "--method 4 is bad usage" status 2 "$cli" movie "$data/default.ifs:1" "$data/default.ifs:3" --method 4 -o "$work/m.gif"
check "morph movie" status 0 "$cli" movie "$data/default.ifs:1" "$data/default.ifs:3" --frames 6 --points 2000 --size 80 --delay 70 --loop 2 -o "$work/m.gif"
check "morph has six frames of 7 cs" test "$(identify -format '%T ' "$work/m.gif")" = "7 7 7 7 7 7 "
check "gif-info reads the morph" status 0 "$cli" gif-info "$work/m.gif"
check "gif-info names size, frames and loops" grep -q "80 x 80, 6 frames, loops 1" "$work/out"
check "gif-info has a line per frame" test "$(grep -c "^[0-9]" "$work/out")" -eq 6
check "rotation movie" status 0 "$cli" movie "$data/default.ifs:3" "$data/default.ifs:3" --rotate 3 --frames 5 --points 2000 --size 60 -o "$work/r.gif"
check "rotation --rotate beyond the maps" status 1 "$cli" movie "$data/default.ifs:3" "$data/default.ifs:3" --rotate 9 -o "$work/r9.gif"
check "no movie file after a failure" test ! -e "$work/r9.gif"
check "cycling movie doubles the frames" status 0 "$cli" movie "$data/default.ifs:1" "$data/default.ifs:2" --frames 3 --cycle --points 1000 --size 60 -o "$work/c.gif"
check "cycling movie frame count" test "$(identify -format '%T ' "$work/c.gif" | wc -w)" -eq 6
check "deterministic movie" status 0 "$cli" movie --deterministic "$data/default.ifs:3" --levels 4 --figure square --size 64 -o "$work/d.gif"
check "deterministic movie pages" test "$(identify -format '%T ' "$work/d.gif" | wc -w)" -eq 5
printf 'not a gif' >"$work/n.gif"
check "gif-info of a file that is not a GIF" status 1 "$cli" gif-info "$work/n.gif"

echo "$failures failure(s)"
[ "$failures" -eq 0 ]
