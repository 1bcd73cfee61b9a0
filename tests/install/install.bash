#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs a build, moves the installation away and uses it as a stranger does: install.bash SOURCE BUILD COMPILER
set -euo pipefail
source="$1"
build="$2"
compiler="$3"
unset LD_LIBRARY_PATH CMAKE_PREFIX_PATH PKG_CONFIG_PATH

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
fail() {
    echo "install: $1" >&2
    exit 1
}
# Runs a command that speaks only when it fails.
quietly() {
    "$@" >log 2>&1 || { cat log >&2; fail "failed: $*"; }
}

quietly env DESTDIR="$work/staged" cmake --install "$build" --prefix /nowhere/zam
mv staged/nowhere/zam moved
libraries="$(dirname "$(find "$work/moved" -name libZAMPrintFramework.so)")"
headers="$work/moved/include/ZAMPrint"

! grep -rIlF -e "$source" -e "$build" -e "$work" -e /nowhere moved || fail 'the files above know where they were made'

for file in man/man1/zamprint.1 bash-completion/completions/zamprint zsh/site-functions/_zamprint \
    fish/vendor_completions.d/zamprint.fish doc/ZAMPrint/LICENSE doc/ZAMPrint/docs/EMBEDDING.md \
    doc/ZAMPrint/examples/host/host.cpp; do
    [[ -s "moved/share/$file" ]] || fail "$file is missing"
done

# What is exported can be included, and the headers need no others. (The build compiles each of them alone.)
while read -r header; do
    [[ -f "$headers/$header" ]] || fail "$header exports something and is not among the HEADERS of its library"
done < <(cd "$source" && grep -rlw --include='*.h' --exclude-dir=build ZAM_EXPORT -- *)
find "$headers" -name '*.h' -printf '#include "%P"\n' >headers.cpp
quietly "$compiler" -std=c++20 -fsyntax-only -I "$headers" headers.cpp

picture="$(base64 -w 0 "$source/docs/images/map.png")"
# A text and a picture, so that both modules are needed, and a colour that only a prepared document shows.
cat >drawing.svg <<SVG
<svg width="300" height="200" xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink">
<style>text { fill: lime }</style>
<text x="20" y="40" font-size="30">Strangers welcome</text>
<image x="20" y="80" width="90" height="90" xlink:href="data:image/png;base64,$picture"/>
</svg>
SVG

check_pdf() {
    quietly qpdf --check "$1"
    [[ "$(pdftotext "$1" -)" == *'Strangers welcome'* ]] || fail "$1 has no text"
    (($(pdfimages -list "$1" | wc -l) > 2)) || fail "$1 has no picture"
    qpdf --qdf --stream-data=uncompress "$1" - | grep -a '^0 1 0 rg' >log || fail "$1 has no colour"
}
# The program prints, and all of ours that it loads is in the moved installation.
prints() {
    quietly "$1" drawing.svg "${@:3}" "$2"
    check_pdf "$2"
    ! ldd "$1" | grep ZAM | grep -vF "=> $work/moved/" || fail "$1 loads the libraries above"
}

prints moved/bin/zamprint tool.pdf -o

[[ -s moved/share/cups/mime/zamprint.types && -s moved/share/cups/mime/zamprint.convs ]] || fail 'CUPS is not told of SVG'
moved/lib/cups/filter/zamsvgtopdf 1 someone title 1 '' drawing.svg >filter.pdf 2>log || fail "the filter: $(cat log)"
check_pdf filter.pdf

quietly cmake -S "$source/tests/install/project" -B cmake -G Ninja \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$work/moved"
quietly cmake --build cmake
prints cmake/print cmake.pdf

export PKG_CONFIG_PATH="$libraries/pkgconfig"
read -ra flags < <(pkg-config --cflags --libs ZAMPrtInterpreterSVG ZAMPrintPrepress ZAMPrintCairo)
quietly "$compiler" -std=c++20 "$source/tests/install/project/main.cpp" "${flags[@]}" -Wl,-rpath,"$libraries" -o print
prints ./print pkg-config.pdf

# The page for those who embed shows this very program.
diff <(sed -n '/^```cpp$/,/^```$/ { /^```/ d; p }' "$source/docs/EMBEDDING.md") \
    <(tail -n +2 "$source/tests/install/project/main.cpp") || fail 'docs/EMBEDDING.md shows another program'
