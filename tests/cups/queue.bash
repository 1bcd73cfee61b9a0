#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Prints SVG documents through a scheduler of CUPS of its own, on the loopback address, with queues that print into files:
# queue.bash FOLDER
# The filter must be installed, and the user be root: the scheduler runs filters as another user. Nothing outside of the
# folder is written, which must not exist and be where everybody may go.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
((EUID == 0)) || { echo 'queue: must be run by root' >&2; exit 1; }
unset CUPS_SERVER LPDEST PRINTER

mkdir "$1"
cd "$1"
work="$PWD"
fail() {
    echo "queue: $1" >&2
    grep -a '\[Job' "$work/error" | grep -av 'envp\|oading' | tail -n 40 >&2 || true
    exit 1
}
# Waits for a command to succeed.
until_true() {
    local left=200
    until "$@" >/dev/null 2>&1; do
        ((left-- > 0)) || fail "waited in vain: $*"
        sleep 0.1
    done
}

# --- The scheduler

find_port() {
    for port in $(shuf -i 20000-29999 -n 50); do
        # Nobody listens where nobody answers.
        (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || { echo "$port"; return; }
    done
    fail 'no port is free'
}
start_scheduler() {
    mkdir configuration state cache spool spool/tmp prints
    chgrp lp cache spool spool/tmp
    chmod 770 cache spool/tmp
    chmod 710 spool
    # FileDevice: queues may print into files.
    printf '%s\n' 'FileDevice Yes' "ServerRoot $work/configuration" "StateDir $work/state" "CacheDir $work/cache" \
        "RequestRoot $work/spool" "TempDir $work/spool/tmp" "ErrorLog $work/error" "AccessLog $work/access" \
        "PageLog $work/page" >cups-files.conf
    printf '%s\n' 'LogLevel debug' "Listen 127.0.0.1:$1" 'Browsing No' 'WebInterface No' 'DefaultAuthType None' \
        '<Location />' 'Order deny,allow' '</Location>' \
        '<Policy default>' 'JobPrivateValues none' '<Limit All>' 'Order deny,allow' '</Limit>' '</Policy>' >cupsd.conf
    cupsd -f -c "$work/cupsd.conf" -s "$work/cups-files.conf" &
    scheduler=$!
    trap 'kill "$scheduler" && wait "$scheduler" || true' EXIT
    export CUPS_SERVER="127.0.0.1:$1"
    until_true is_up
}
is_up() {
    lpstat -r | grep 'scheduler is running'
}
add_queue() {
    # It always warns that there will be no printer descriptions one day.
    lpadmin -p "$1" -v "file:$work/prints/$1.pdf" -P "$here/queue.ppd" -E 2>warnings || fail "no queue: $(cat warnings)"
}
port="$(find_port)"
start_scheduler "$port"
add_queue paper

# --- Documents

# drawing WORD...: the words below each other, on 160 x 80 points.
drawing() {
    echo '<svg xmlns="http://www.w3.org/2000/svg" width="200" height="100">'
    printf '<text x="10" y="50" font-size="30">%s</text>' "$@"
    echo '</svg>'
}
drawing Hello >plain.svg
{ echo '<?xml version="1.0"?>'; drawing Declared; } >declared
{ printf '<!-- Made by hand -->\n'; drawing Commented; } >commented
{ printf '\n\n'; drawing Indented; } >indented
{ printf '\xef\xbb\xbf'; drawing Marked; } >marked
echo 'How to write <svg> tags' >note
gzip -c plain.svg >compressed.svgz
{ echo '<all>'; drawing First; drawing Second; drawing Third; echo '</all>'; } >three.svg
printf '<svg>\n<g></svg>\n' >broken.svg
awk 'BEGIN {
    print "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"900\" height=\"900\">"
    for (i = 0; i < 400000; ++i) print "<path d=\"M" i % 900 " 0 C 1 2 3 4 500 600\" stroke=\"red\"/>"
    print "</svg>"
}' >large.svg

# --- Jobs

# submit QUEUE ARGUMENT...: the job's name.
submit() {
    lp -d "$@" | sed -n 's/^request id is \([^ ]*\) .*/\1/p'
}
has_left() {
    local jobs
    jobs="$(lpstat -W not-completed -o)" && ! grep -q "^$1 " <<<"$jobs"
}
# stands JOB TEXT: whether the report on all jobs says so of this one.
stands() {
    lpstat -l -W all -o | sed -n "/^$1 /,/^[^[:blank:]]/p" | grep -q -- "$2"
}
words_of() {
    pdftotext -raw "$1" - | tr -s '[:space:]' ' ' | sed 's/ $//'
}
# expect SIZE PAGES TEXT ARGUMENT...: what comes out of the queue for `lp ARGUMENT...`.
expect() {
    local size="$1" pages="$2" text="$3" print=prints/paper.pdf
    shift 3
    rm -f "$print"
    until_true has_left "$(submit paper "$@")"
    [[ -s "$print" ]] || fail "lp $*: printed nothing"
    pdfinfo "$print" >information
    grep -q "^Page size: *$size pts" information || fail "lp $*: not $size points: $(cat information)"
    grep -q "^Pages: *$pages\$" information || fail "lp $*: not $pages pages: $(cat information)"
    [[ "$(words_of "$print")" == "$text" ]] || fail "lp $*: not '$text': $(words_of "$print")"
}
# The width of the first word on the print, in whole points.
width_of_word() {
    pdftotext -bbox prints/paper.pdf - | sed -n 's/.*xMin="\([^"]*\)".*xMax="\([^"]*\)".*/\1 \2/p' |
        awk 'NR == 1 { printf "%.0f\n", $2 - $1 }'
}

expect '595 x 842' 1 Hello plain.svg
natural="$(width_of_word)"
expect '595 x 842' 1 Hello compressed.svgz
expect '595 x 842' 1 Declared declared
expect '595 x 842' 1 Commented commented
expect '595 x 842' 1 Indented indented
expect '595 x 842' 1 Marked marked
# What only speaks of SVG is text.
until_true has_left "$(submit paper note)"
grep -q 'Started filter .*/texttopdf' error || fail 'a text was taken for a drawing'
expect '595 x 842' 1 Hello - <plain.svg
expect '595 x 842' 1 Hello <compressed.svgz
expect '595 x 842' 3 'First Second Third' three.svg
expect '595 x 842' 1 Second -o page-ranges=2 three.svg
expect '420 x 595' 1 Hello -o media=A5 plain.svg
[[ "$(width_of_word)" == "$natural" ]] || fail 'another paper has changed the size of the drawing'
expect '842 x 595' 1 Hello -o landscape plain.svg
expect '842 x 595' 2 'First Second Third' -o number-up=2 three.svg
expect '595 x 842' 1 Hello -o fit-to-page plain.svg
(($(width_of_word) > 2 * natural)) || fail 'fit-to-page has not enlarged the drawing'

# What is broken is not printed and says why; the queue prints on.
broken="$(submit paper broken.svg)"
until_true stands "$broken" job-completed-with-errors
stands "$broken" 'broken.svg:2:6: mismatched tag' || fail 'the job does not say what is wrong with its document'
[[ ! -s prints/paper.pdf ]] || fail 'something was printed of a broken document'
lpstat -p paper | grep -q 'enabled since' || fail 'a broken document has stopped the queue'
expect '595 x 842' 1 Hello plain.svg
cancel "$broken"
until_true has_left "$broken"

# A cancelled job ends at once, with nothing left behind.
is_running() {
    pgrep -x zamsvgtopdf
}
large="$(submit paper large.svg)"
until_true is_running
cancel "$large"
sleep 1
! is_running || fail 'the filter goes on after its job was cancelled'
until_true has_left "$large"
[[ -z "$(find spool/tmp -type f -not -path '*/.cache/*')" ]] || fail "the spool has $(find spool/tmp -type f)"

# Twenty at once, each on a queue of its own so that each print can be looked at.
for i in $(seq 20); do
    add_queue "queue$i"
    drawing "Sheet$i" >"sheet$i.svg"
done
for i in $(seq 20); do
    submit "queue$i" "sheet$i.svg" >>submitted &
    submitting+=($!)
done
wait "${submitting[@]}"
while read -r job; do
    until_true has_left "$job"
done <submitted
for i in $(seq 20); do
    [[ "$(words_of "prints/queue$i.pdf")" == "Sheet$i" ]] || fail "sheet $i did not come out"
done

! grep -i 'PAGE: ' error | grep -i zamsvg || fail 'the filter counts pages, which is for a filter that follows'
echo 'queue: all printed'
