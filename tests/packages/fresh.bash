#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# What script/test-packages runs in a fresh Debian: /packages holds the packages, /tests what they are tried with.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8

work="$(mktemp -d)"
chmod 755 "$work" # filters are run by another user
cd "$work"
fail() {
    echo "packages: $1" >&2
    exit 1
}
# Runs a command that speaks only when it fails.
quietly() {
    "$@" >log 2>&1 || { tail -n 60 log >&2; fail "failed: $*"; }
}
install() {
    quietly apt-get -qq install -y "$@"
}
# What one knows a file of ours by, wherever it is.
find_ours() {
    find / -xdev \( -path /packages -o -path /tests -o -path "$work" \) -prune -o \
        \( -iname '*zamprint*' -o -name 'libZAM*' -o -name '*zamsvg*' \) -print
}
[[ -z "$(find_ours)" ]] || fail "this system is not fresh: $(find_ours)"
quietly apt-get -qq update

# Nothing but what the packages ask for: with it, the tool prints text and pictures of each kind.
install /packages/zamprint_*.deb /packages/libzamprint0*.deb
zamprint /tests/drawing.svg -o tool.pdf
for output in ps png svg; do
    zamprint /tests/drawing.svg -o "tool.$output"
done
echo 'packages: the tool prints'

install /packages/libzamprint-dev_*.deb g++ cmake make
quietly cmake -S /tests/project -B project
quietly cmake --build project
project/print /tests/drawing.svg project.pdf
echo 'packages: an outside project builds and prints'

install /packages/zamprint-cups_*.deb cups-client
/tests/cups/queue.bash "$work/queue"

# CUPS has brought what judges a PDF.
for print in tool.pdf project.pdf; do
    [[ "$(pdftotext "$print" -)" == *'Strangers welcome'* ]] || fail "$print has no text"
    (($(pdfimages -list "$print" | wc -l) == 4)) || fail "$print has not both pictures: $(pdfimages -list "$print")"
done

packages=()
for file in /packages/*.deb; do
    packages+=("$(dpkg-deb -f "$file" Package)")
done
dpkg -L "${packages[@]}" | grep -v -e '^$' -e '^/\.$' | sort -u >files
triplet="$(g++ -print-multiarch)"
places="bin/zamprint|include/ZAMPrint/.+|lib/$triplet/(libZAM[^/]+|ZAMPrint-[0-9.]+/[^/]+|cmake/ZAMPrint/.+"
places+="|pkgconfig/ZAM[^/]+)|lib/cups/filter/zamsvgtopdf|share/cups/mime/zamprint\\.(types|convs)"
places+="|share/doc/($(IFS='|'; echo "${packages[*]}"))/.+|share/man/man1/zamprint\\.1\\.gz"
places+='|share/(bash-completion/completions/zamprint|zsh/vendor-completions/_zamprint)'
places+='|share/fish/vendor_completions\.d/zamprint\.fish'
while read -r file; do
    [[ -d "$file" || "$file" =~ ^/usr/($places)$ ]] || fail "$file is outside of its place"
done <files
dpkg --verify "${packages[@]}" >log || true
[[ ! -s log ]] || fail "files are not as they were packed: $(cat log)"

# A script that is run after a removal stays until a purge.
quietly apt-get -qq remove -y "${packages[@]}"
quietly dpkg --purge zamprint-cups
[[ -z "$(find_ours)" ]] || fail "files are left after the packages are gone: $(find_ours)"
while read -r file; do
    # Folders stay as long as they are others', too.
    [[ -d "$file" ]] && dpkg -S "$file" >/dev/null 2>&1 && continue
    [[ ! -e "$file" ]] || fail "$file is left after the packages are gone"
done <files
echo 'packages: nothing is left of them'
