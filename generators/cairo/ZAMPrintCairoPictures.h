// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMRef.h"
#include "framework/visualisation/ZAMPixelImage.h"
#include "generators/cairo/ZAMPrintCairoHandles.h"
#include "generators/cairo/ZAMPrintCairoRings.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

/// The pictures of a document as surfaces: each is made once, and a PDF stores it once. It holds on to the images, and
/// must outlive the surfaces that they are drawn on.
class ZAMPrintCairoPictures {
public:
    /// What is taken of an image, and how many pixels become of it. Sides are positive.
    struct Form {
        int x = 0; ///< the part of the image, in its pixels
        int y = 0;
        int width = 0;
        int height = 0;
        int columns = 0; ///< pixels that become of it: as many, or fewer
        int rows = 0;
        int fromX = 0; ///< and a window on those pixels put side by side without end
        int fromY = 0;
        int windowX = 0;
        int windowY = 0;
        int halvings = 0; ///< so often there are then half as many pixels a side

        /// A part with its pixels as they are. A side that is longer than those of surfaces loses some.
        [[nodiscard]] static Form Of(int x, int y, int width, int height);
        [[nodiscard]] static Form Of(const ZAMPixelImage& image) {
            return Of(0, 0, image.GetWidth(), image.GetHeight());
        }
        [[nodiscard]] auto AsTuple() const {
            return std::tie(x, y, width, height, columns, rows, fromX, fromY, windowX, windowY, halvings);
        }
        /// As many pixels as are given, or fewer.
        void Reduce(int newColumns, int newRows) {
            columns = windowX = newColumns;
            rows = windowY = newRows;
        }
        /// No pixel is lost.
        [[nodiscard]] bool KeepsPixels() const { return columns == width && rows == height; }
        [[nodiscard]] bool IsRepeated() const {
            return fromX != 0 || fromY != 0 || windowX != columns || windowY != rows;
        }
        bool operator<(const Form& other) const { return AsTuple() < other.AsTuple(); }
    };

    /// A bitmap of a pattern's step, so many pixels of it, of which an image fills the given part.
    struct Cell {
        const ZAMPixelImage* image;
        int columns;
        int rows;
        double partX;
        double partY;

        [[nodiscard]] auto AsTuple() const { return std::tie(image, columns, rows, partX, partY); }
        bool operator<(const Cell& other) const { return AsTuple() < other.AsTuple(); }
    };

    /// What becomes of a picture that is drawn.
    enum class Fate {
        Painted, ///< nothing is left of it but the marks on the page
        Stored,  ///< the page keeps it until it ends, and a JPEG file as it is
        Written, ///< likewise, but with the work of writing it for every mark
        Filed,   ///< as stored, and one that is no JPEG is a PNG file
    };

    explicit ZAMPrintCairoPictures(Fate fate) : _Fate(fate) {}

    /// To be called for every mark. Valid until the next call, and longer for what refers to it. Null when there is no
    /// memory, or when the page has more made of its images than is sensible. The surface of what is written for every
    /// mark has the less pixels, the more the page has had written.
    [[nodiscard]] cairo_surface_t* Find(const ZAMRef<ZAMPixelImage>& image, const Form& form);
    /// The cell, made with the first call; null when it cannot be made, or the document has more than is sensible.
    template <class Make> [[nodiscard]] ZAMRef<ZAMPixelImage> FindCell(const Cell& cell, const Make& make) {
        const auto found = _Cells.find(cell);
        if (found != _Cells.end()) {
            return found->second;
        }
        return SpendCell(cell) ? _Cells[cell] = make() : ZAMRef<ZAMPixelImage>();
    }
    /// The image as rings; null when it has none, or when the document had more searched for them than is sensible. See
    /// ZAMPrintCairoRings for the aspect.
    [[nodiscard]] const ZAMPrintCairoRings* FindRings(const ZAMRef<ZAMPixelImage>& image, double aspect);
    /// Takes the edges of a mark's enlarged pixels, of which a page may have so much smoothed. False when it has.
    [[nodiscard]] bool SpendEdges(double squaredLength);
    /// Drops what was made of images for the page.
    void EndPage();

private:
    struct Known {
        ZAMRef<ZAMPixelImage> image;
        std::string name; ///< no other image of the document has it
        std::map<Form, ZAMPrintCairoSurface> surfaces;
    };

    [[nodiscard]] cairo_surface_t* FindNew(Known& known, const Form& form);
    [[nodiscard]] cairo_surface_t* Coarsen(cairo_surface_t* surface, Known& known, const Form& form);
    [[nodiscard]] Known& FindImage(const ZAMRef<ZAMPixelImage>& image);
    [[nodiscard]] bool Spend(const Form& form);
    [[nodiscard]] bool SpendCell(const Cell& cell);
    [[nodiscard]] bool SpendSearch(const ZAMPixelImage& image);
    [[nodiscard]] ZAMPrintCairoSurface Make(const Known& known, const Form& form) const;

    Fate _Fate;
    std::map<const ZAMPixelImage*, Known> _Images;
    std::map<Cell, ZAMRef<ZAMPixelImage>> _Cells;
    std::map<std::pair<const ZAMPixelImage*, float>, std::optional<ZAMPrintCairoRings>> _Rings;
    std::size_t _Made = 0;      ///< pixels for the page
    double _Edges = 0.0;        ///< square device units, for the page
    std::size_t _Written = 0;   ///< pixels that marks of the page cost, but for the first one of each whole image
    std::size_t _CellsMade = 0; ///< pixels for the document
    std::size_t _Searched = 0;  ///< pixels for rings, each as often as another aspect was asked for
};
