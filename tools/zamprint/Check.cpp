// SPDX-License-Identifier: MIT
#include "tools/zamprint/Check.h"

#include "framework/base/ZAMJsonWriter.h"
#include "tools/common/Document.h"
#include "tools/common/Failure.h"
#include "tools/common/InputFile.h"
#include "tools/common/Message.h"
#include "tools/zamprint/OutputFile.h"
#include "ZAMPrtInterpreterSVG/preflight/ZAMPrintSVGPreflight.h"

#include <memory>
#include <new>

namespace {

// Writes what was found in documents, one after the other.
class Report {
public:
    Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    virtual ~Report() = default;

    virtual void Add(const std::string& file, const ZAMPrintSVGPreflight& preflight) = 0;
    virtual void Finish() = 0;
};

class TextReport : public Report {
public:
    explicit TextReport(std::ostream& out) : _Out(out) {}

    void Add(const std::string& file, const ZAMPrintSVGPreflight& preflight) override {
        const std::string name = WithoutControls(file);
        for (const ZAMPrintSVGPreflight::Finding& finding : preflight.GetFindings()) {
            _Out << name << ':' << finding.line << ':' << finding.column << ": "
                 << WithoutControls(finding.what + "; " + finding.instead) << '\n';
        }
        if (preflight.GetUnlistedCount() > 0) {
            _Out << name << ": " << preflight.GetUnlistedCount() << " more like these\n";
        }
        const std::size_t count = preflight.GetFindings().size() + preflight.GetUnlistedCount();
        ++_Documents;
        _Findings += count;
        _Affected += count > 0 ? 1 : 0;
    }

    void Finish() override {
        _Out << Count(_Findings, "finding") << " in " << _Affected << " of " << Count(_Documents, "document") << '\n';
    }

private:
    static std::string Count(std::size_t count, const std::string& what) {
        return std::to_string(count).append(" ").append(what).append(count == 1 ? "" : "s");
    }

    std::ostream& _Out;
    std::size_t _Documents = 0;
    std::size_t _Affected = 0; // with findings
    std::size_t _Findings = 0;
};

class JsonReport : public Report {
public:
    explicit JsonReport(std::ostream& out) : _Out(out), _Json(out) {
        _Json.BeginObject();
        _Json.Key("files");
        _Json.BeginArray(ZAMJsonWriter::Layout::Lines);
    }

    void Add(const std::string& file, const ZAMPrintSVGPreflight& preflight) override {
        _Json.BeginObject();
        _Json.Member("file", file);
        _Json.Key("findings");
        _Json.BeginArray(ZAMJsonWriter::Layout::Lines);
        for (const ZAMPrintSVGPreflight::Finding& finding : preflight.GetFindings()) {
            _Json.BeginObject();
            _Json.Member("line", finding.line);
            _Json.Member("column", finding.column);
            _Json.Member("code", finding.code);
            _Json.Member("element", finding.element);
            _Json.Member("subject", finding.subject);
            _Json.Member("what", finding.what);
            _Json.Member("instead", finding.instead);
            _Json.EndObject();
        }
        _Json.EndArray();
        _Json.Member("unlisted", preflight.GetUnlistedCount());
        _Json.EndObject();
    }

    void Finish() override {
        _Json.EndArray();
        _Json.EndObject();
        _Out << '\n';
    }

private:
    std::ostream& _Out;
    ZAMJsonWriter _Json;
};

std::unique_ptr<Report> MakeReport(const Options& options, std::ostream& out) {
    if (options.format == OutputFormat::Json) {
        return std::make_unique<JsonReport>(out);
    }
    return std::make_unique<TextReport>(out);
}

ZAMPrintSVGPreflight CheckOne(const std::string& input, const Options& options) {
    const ZAMAllocationBudget budget(options.mostElements);
    const ZAMLightXmlElement root = Document::Read(input, options);
    const std::string path = Document::PathOf(input);
    const ZAMFileAccessPolicy policy = MakePolicy(options.allowedFiles, path);
    ZAMPrintSVGPreflight preflight(options.isPrepared ? ZAMPrintSVGPreflight::Mode::Prepared
                                                      : ZAMPrintSVGPreflight::Mode::AsItStands);
    preflight.SetCurrentPath(path.c_str());
    const int status = preflight.Check(root);
    if (status < 0) {
        throw std::bad_alloc();
    }
    if (status == 0) {
        throw Failure(ExitStatus::Failed, GetInputName(input) + ": holds no svg element");
    }
    return preflight;
}

} // namespace

CheckResult Check(const Options& options) {
    CheckResult result;
    OutputFile output(kStandardStream);
    const std::unique_ptr<Report> report = MakeReport(options, output.GetStream());
    for (const std::string& input : options.inputs) {
        try {
            const ZAMPrintSVGPreflight preflight = CheckOne(input, options);
            report->Add(GetInputName(input), preflight);
            result.hasFindings = result.hasFindings || !preflight.GetFindings().empty();
        } catch (const Failure& failure) {
            PrintMessage(failure.what());
            result.areAllRead = false;
        }
    }
    report->Finish();
    output.Commit();
    return result;
}
