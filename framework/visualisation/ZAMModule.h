// SPDX-License-Identifier: MIT
#pragma once

/// Opens a module: a shared library in the modules' folder, which stands beside the library or program that this code
/// is in, else where the dynamic linker finds it. Gives the address of the symbol, or null when there is no such
/// module. It stays open: what modules bring along keeps state that outlives its users.
void* ZAMOpenModule(const char* fileName, const char* symbol);
