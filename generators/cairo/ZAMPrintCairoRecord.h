// SPDX-License-Identifier: MIT
#pragma once

#include "framework/mathematics/ZAMMathAffine2D.h"
#include "framework/mathematics/ZAMMathBox2D.h"
#include "framework/print/ZAMPrintPaint.h"
#include "framework/print/ZAMPrintPath.h"

#include <cstddef>
#include <cstring>
#include <span>
#include <type_traits>
#include <vector>

/// The plain marks of a page and its clips, as they were given, to be drawn later and as often as needed.
class ZAMPrintCairoRecord {
public:
    void Paint(const ZAMPrintColour& colour);
    void PushClip(const ZAMMathBox2D& area, const ZAMMathAffine2D& toPage);
    void PopClip();
    /// The fill has no pattern.
    void DrawPath(const ZAMPrintPath& path, const ZAMMathAffine2D& toPage, const ZAMPrintFill* fill,
                  const ZAMPrintPen* pen);

    /// Bytes of memory that it takes.
    [[nodiscard]] std::size_t GetSize() const { return _Bytes.capacity(); }

    /// Calls the operations of these names on a canvas, as they were called here.
    template <class Canvas> void Replay(Canvas& canvas) const;

private:
    enum class Mark : unsigned char { Paint, PushClip, PopClip, Path };

    struct Header {
        ZAMMathAffine2D toPage;
        ZAMPrintFill fill;
        ZAMPrintPen pen;
        std::size_t dashes = 0;
        std::size_t verbs = 0;
        std::size_t points = 0;
        bool fills = false;
        bool strokes = false;
    };

    // Reads what was written, in the same order.
    class Reader {
    public:
        explicit Reader(std::span<const std::byte> bytes) : _Bytes(bytes) {}

        [[nodiscard]] bool IsAtEnd() const { return _Bytes.empty(); }
        template <class T> [[nodiscard]] T Take() {
            T value;
            TakeInto(std::span(&value, 1));
            return value;
        }
        template <class T> void TakeInto(std::span<T> values) {
            if (values.empty()) {
                return; // null is no place to copy from or to
            }
            std::memcpy(values.data(), _Bytes.data(), values.size_bytes());
            _Bytes = _Bytes.subspan(values.size_bytes());
        }

    private:
        std::span<const std::byte> _Bytes;
    };

    template <class T> void Put(std::span<const T> values) {
        static_assert(std::is_trivially_copyable_v<T>);
        const auto bytes = std::as_bytes(values);
        _Bytes.insert(_Bytes.end(), bytes.begin(), bytes.end());
    }
    template <class T> void Put(const T& value) { Put(std::span<const T>(&value, 1)); }
    static void Build(std::span<const ZAMPrintPath::Verb> verbs, std::span<const ZAMMathPoint2D> points,
                      ZAMPrintPath& path);

    std::vector<std::byte> _Bytes;
};

template <class Canvas> void ZAMPrintCairoRecord::Replay(Canvas& canvas) const {
    ZAMPrintPath path;
    std::vector<ZAMPrintPath::Verb> verbs;
    std::vector<ZAMMathPoint2D> points;
    std::vector<float> dashes;
    const auto drawPath = [&](Reader& reader) {
        auto header = reader.Take<Header>();
        dashes.resize(header.dashes);
        verbs.resize(header.verbs);
        points.resize(header.points);
        reader.TakeInto(std::span(dashes));
        reader.TakeInto(std::span(verbs));
        reader.TakeInto(std::span(points));
        Build(verbs, points, path);
        header.pen.dashes = dashes;
        canvas.DrawPath(path, header.toPage, header.fills ? &header.fill : nullptr,
                        header.strokes ? &header.pen : nullptr);
    };
    for (Reader reader(_Bytes); !reader.IsAtEnd();) {
        switch (reader.Take<Mark>()) {
        case Mark::Paint:
            canvas.Paint(reader.Take<ZAMPrintColour>());
            break;
        case Mark::PushClip: {
            const auto area = reader.Take<ZAMMathBox2D>();
            canvas.PushClip(area, reader.Take<ZAMMathAffine2D>());
            break;
        }
        case Mark::PopClip:
            canvas.PopClip();
            break;
        case Mark::Path:
            drawPath(reader);
            break;
        }
    }
}
