// SPDX-License-Identifier: MIT
#include "tools/common/AllowedFiles.h"

#include "framework/base/ZAMFilePath.h"
#include "framework/base/ZAMTextCompare.h"

std::optional<AllowedFiles> FindAllowedFiles(std::string_view name) {
    struct Choice {
        std::string_view name;
        AllowedFiles files;
    };
    constexpr Choice kChoices[] = {
        {"all", AllowedFiles::All}, {"document", AllowedFiles::Document}, {"none", AllowedFiles::None}};
    for (const Choice& choice : kChoices) {
        if (ZAMTextMatches(choice.name, name)) {
            return choice.files;
        }
    }
    return std::nullopt;
}

ZAMFileAccessPolicy MakePolicy(AllowedFiles files, const std::string& documentPath) {
    if (files == AllowedFiles::All) {
        return ZAMFileAccessPolicy::All();
    }
    if (files == AllowedFiles::None || documentPath.empty()) {
        return ZAMFileAccessPolicy::None();
    }
    ZAMUnicodeString folder;
    ZAMUnicodeString fileName;
    ZAMSplitPath(documentPath, folder, fileName);
    return ZAMFileAccessPolicy::OneFolder(folder);
}
