// SPDX-License-Identifier: MIT
#pragma once

/// Marks what a shared library of the framework shows to its users; everything else is compiled with hidden visibility.
#define ZAM_EXPORT [[gnu::visibility("default")]]
