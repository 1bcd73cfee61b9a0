// SPDX-License-Identifier: MIT
#pragma once

#include "tools/common/Options.h"

#include <cstddef>
#include <string>

/// A bar on standard error that tells how many of the documents are done. It goes with the object.
class Progress {
public:
    explicit Progress(const Options& options);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    /// One more document is done.
    void Advance(const std::string& name);

private:
    bool _IsShown;
    std::size_t _Count;
    std::size_t _Done = 0;
};
