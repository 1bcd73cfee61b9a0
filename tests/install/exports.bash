#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Looks at the dynamic symbols that libraries define: exports.bash LIBRARY...
# They are names of ours and nothing else: no third party's, no instance of the standard library's templates.
set -euo pipefail

ours='^((typeinfo( name)?|vtable|guard variable) for |non-virtual thunk to )?ZAM'
# What readers of pictures and of base64 and the table of colours are called.
named='^(ReadMem(ory)?(PNG|JPEG|BMP)PixelImage\(|ConvertFromBase64Buffer\(|SVG_ColorKeywordTab$)'

failed=0
for library in "$@"; do
    symbols="$(nm --dynamic --defined-only --demangle "$library" | cut -d ' ' -f 3-)"
    grep -qE "$ours" <<<"$symbols" || { echo "exports: $library shows nothing" >&2; failed=1; }
    if foreign="$(grep -vE -e "$ours" -e "$named" <<<"$symbols")"; then
        printf 'exports: %s shows more than it should:\n%s\n' "$library" "$foreign" >&2
        failed=1
    fi
done
(($# > 0 && failed == 0))
