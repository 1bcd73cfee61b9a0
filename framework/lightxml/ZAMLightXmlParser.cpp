// SPDX-License-Identifier: MIT
#include "framework/lightxml/ZAMLightXmlParser.h"

#include "framework/base/ZAMLimits.h"
#include "framework/lightxml/ZAMLightXmlDocument.h"
#include "framework/lightxml/ZAMLightXmlEncoding.h"
#include "framework/lightxml/ZAMLightXmlPlace.h"

#include <algorithm>
#include <cstring>
#include <expat.h>
#include <memory>
#include <new>

namespace {

struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ParserHandle = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter>;

// One parse: what expat's handlers fill. An exception must not pass through expat, so a handler that fails stops the
// parser and leaves the reason here.
class ParseRun {
public:
    ParseRun(XML_Parser parser, std::span<const char> bytes, std::size_t mostElements)
        : _Parser(parser), _Bytes(bytes), _Place(bytes), _ElementsLeft(mostElements) {
        XML_SetUserData(parser, this);
        XML_SetElementHandler(parser, &OnStart, &OnEnd);
        XML_SetCharacterDataHandler(parser, &OnText);
        XML_SetUnknownEncodingHandler(parser, &ZAMLightXmlUnknownEncoding, nullptr);
    }

    bool Run() {
        if (_Bytes.size() > ZAMLimits::kInputBytes) {
            Stop("the document is larger than 2 GiB");
            return false;
        }
        // Room that nothing is put into is never touched and costs nothing, as long as it is not absurdly large.
        constexpr std::size_t kBytesForElement = 64;
        constexpr std::size_t kBytesForAttribute = 24;
        constexpr std::size_t kForeseen = std::size_t{64} << 20U;
        const std::size_t foreseen = std::min(_Bytes.size(), kForeseen);
        _Document->Expect(foreseen / kBytesForElement, foreseen / kBytesForAttribute);
        // All in one call: expat starts over with an unfinished attribute at each further piece.
        return XML_Parse(_Parser, _Bytes.data(), static_cast<int>(_Bytes.size()), XML_TRUE) == XML_STATUS_OK;
    }

    [[nodiscard]] std::shared_ptr<ZAMLightXmlDocument> GetDocument() const { return _Document; }

    [[nodiscard]] ZAMLightXmlError GetError() const {
        if (_Failure != nullptr) {
            return {_Failure, _FailureLine, _FailureColumn};
        }
        return {XML_ErrorString(XML_GetErrorCode(_Parser)), GetLine(), GetColumn()};
    }

private:
    static void OnStart(void* self, const char* name, const char** attributes) {
        static_cast<ParseRun*>(self)->Guarded([&](ParseRun& run) { run.Start(name, attributes); });
    }
    static void OnEnd(void* self, const char* /*name*/) {
        static_cast<ParseRun*>(self)->Guarded([](ParseRun& run) { run._Document->CloseElement(); });
    }
    static void OnText(void* self, const char* data, int length) {
        static_cast<ParseRun*>(self)->Guarded([&](ParseRun& run) {
            run._Document->AddText({data, static_cast<std::size_t>(length)});
        });
    }

    template <class Action> void Guarded(Action action) noexcept {
        if (_Failure != nullptr) { // expat may still deliver the end of what it has begun
            return;
        }
        try {
            action(*this);
        } catch (const std::bad_alloc&) {
            Stop("out of memory");
        }
    }

    void Start(const char* name, const char** attributes) {
        if (_Document->GetOpenCount() == static_cast<std::size_t>(ZAMLimits::kElementDepth)) {
            Stop("elements are nested more than 256 deep");
            return;
        }
        if (_ElementsLeft-- == 0) {
            Stop("the document has too many elements");
            return;
        }
        if (_Place.MoveTo(static_cast<std::size_t>(XML_GetCurrentByteIndex(_Parser)))) {
            _Document->OpenElement(name, _Place.GetLine(), _Place.GetColumn());
        } else {
            _Document->OpenElement(name, GetLine(), GetColumn());
        }
        AddAttributes(attributes);
    }

    void AddAttributes(const char** attributes) {
        const char** const end = attributes + 2 * ZAMLimits::kAttributesOfElement;
        const char** const defaulted = attributes + XML_GetSpecifiedAttributeCount(_Parser);
        for (; *attributes != nullptr; attributes += 2) {
            if (attributes == end) {
                Stop("an element has more than 4096 attributes");
                return;
            }
            if (attributes >= defaulted && !Pays(std::strlen(attributes[0]) + std::strlen(attributes[1]))) {
                Stop("the document type adds too many attributes");
                return;
            }
            _Document->AddAttribute(attributes[0], attributes[1]);
        }
    }

    // For an attribute that the element does not spell out, of so many bytes.
    bool Pays(std::size_t bytes) {
        const std::size_t cost = bytes + sizeof(ZAMLightXmlDocument::Attribute);
        const bool isEnough = cost <= _DefaultedBytesLeft;
        _DefaultedBytesLeft -= isEnough ? cost : 0;
        return isEnough;
    }

    // The place is taken here: expat goes on to the end of the tag before it stops.
    void Stop(const char* failure) {
        _Failure = failure;
        _FailureLine = GetLine();
        _FailureColumn = GetColumn();
        XML_StopParser(_Parser, XML_FALSE);
    }

    [[nodiscard]] std::uint32_t GetLine() const {
        return static_cast<std::uint32_t>(XML_GetCurrentLineNumber(_Parser));
    }
    [[nodiscard]] std::uint32_t GetColumn() const {
        return static_cast<std::uint32_t>(XML_GetCurrentColumnNumber(_Parser)) + 1;
    }

    XML_Parser _Parser;
    std::span<const char> _Bytes;
    ZAMLightXmlPlace _Place; // of the element opened last
    std::shared_ptr<ZAMLightXmlDocument> _Document = std::make_shared<ZAMLightXmlDocument>();
    std::size_t _ElementsLeft;
    std::size_t _DefaultedBytesLeft = ZAMLimits::kDefaultedBytes;
    const char* _Failure = nullptr;
    std::uint32_t _FailureLine = 0;
    std::uint32_t _FailureColumn = 0;
};

} // namespace

int ZAMLightXmlParser::Parse(const ZAMLightXmlInputStream& stream, ZAMLightXmlElement& root) {
    const ParserHandle parser(XML_ParserCreate(nullptr));
    if (!parser) {
        _Error = {"out of memory"};
        return -1;
    }
    try {
        ParseRun run(parser.get(), stream.GetBytes(), _MostElements);
        const bool complete = run.Run();
        root = run.GetDocument()->IsEmpty() ? ZAMLightXmlElement() : ZAMLightXmlElement(run.GetDocument(), 0);
        _Error = complete ? ZAMLightXmlError() : run.GetError();
        return complete ? 1 : -1;
    } catch (const std::bad_alloc&) {
        _Error = {"out of memory"};
        return -1;
    }
}
