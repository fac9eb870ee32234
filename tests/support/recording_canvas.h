#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "graphics/canvas.h"

namespace kalvo::tests {

using graphics::Canvas;
using graphics::Color;
using graphics::LineBatch;
using graphics::Path;
using graphics::Point;
using graphics::Rect;
using graphics::Stroke;
using graphics::TextStyle;
using graphics::Wedge;

/// The commands of a `Canvas` as plain values that compare equal, so that a test can say what a
/// picture is made of.
namespace draw {
struct FillPath {
    Path path;
    Color color;
    friend bool operator==(const FillPath&, const FillPath&) = default;
};
struct StrokePath {
    Path path;
    Stroke stroke;
    friend bool operator==(const StrokePath&, const StrokePath&) = default;
};
struct StrokeLines {
    LineBatch lines;
    Color color;
    double width;
    friend bool operator==(const StrokeLines&, const StrokeLines&) = default;
};
struct FillRect {
    Rect rect;
    Color color;
    friend bool operator==(const FillRect&, const FillRect&) = default;
};
struct FillRoundedRect {
    Rect rect;
    double radius;
    Color color;
    friend bool operator==(const FillRoundedRect&, const FillRoundedRect&) = default;
};
struct StrokeRoundedRect {
    Rect rect;
    double radius;
    Stroke stroke;
    friend bool operator==(const StrokeRoundedRect&, const StrokeRoundedRect&) = default;
};
struct FillCircle {
    Point center;
    double radius;
    Color color;
    friend bool operator==(const FillCircle&, const FillCircle&) = default;
};
struct StrokeCircle {
    Point center;
    double radius;
    Stroke stroke;
    friend bool operator==(const StrokeCircle&, const StrokeCircle&) = default;
};
struct FillWedge {
    Wedge wedge;
    Color color;
    friend bool operator==(const FillWedge&, const FillWedge&) = default;
};
struct Text {
    std::string text;
    Point center;
    TextStyle style;
    friend bool operator==(const Text&, const Text&) = default;
};
struct Save {
    friend bool operator==(const Save&, const Save&) = default;
};
struct Restore {
    friend bool operator==(const Restore&, const Restore&) = default;
};
struct Translate {
    double dx;
    double dy;
    friend bool operator==(const Translate&, const Translate&) = default;
};
struct Scale {
    double factor;
    friend bool operator==(const Scale&, const Scale&) = default;
};
struct ClipRoundedRect {
    Rect rect;
    double radius;
    friend bool operator==(const ClipRoundedRect&, const ClipRoundedRect&) = default;
};

using Command = std::variant<FillPath,
                             StrokePath,
                             StrokeLines,
                             FillRect,
                             FillRoundedRect,
                             StrokeRoundedRect,
                             FillCircle,
                             StrokeCircle,
                             FillWedge,
                             Text,
                             Save,
                             Restore,
                             Translate,
                             Scale,
                             ClipRoundedRect>;
}  // namespace draw

/// A canvas that keeps what it is told, in order.
class RecordingCanvas final : public Canvas {
 public:
    std::vector<draw::Command> commands;

    /// All recorded commands of one kind, in order.
    template <class Kind>
    [[nodiscard]] std::vector<Kind> all() const {
        std::vector<Kind> found;
        for (const draw::Command& command : commands) {
            if (const Kind* match = std::get_if<Kind>(&command)) found.push_back(*match);
        }
        return found;
    }

    void fillPath(const Path& path, const Color& color) override {
        commands.emplace_back(draw::FillPath{path, color});
    }
    void strokePath(const Path& path, const Stroke& stroke) override {
        commands.emplace_back(draw::StrokePath{path, stroke});
    }
    void strokeLines(const LineBatch& lines, const Color& color, double width) override {
        commands.emplace_back(draw::StrokeLines{lines, color, width});
    }
    void fillRect(const Rect& rect, const Color& color) override {
        commands.emplace_back(draw::FillRect{rect, color});
    }
    void fillRoundedRect(const Rect& rect, double radius, const Color& color) override {
        commands.emplace_back(draw::FillRoundedRect{rect, radius, color});
    }
    void strokeRoundedRect(const Rect& rect, double radius, const Stroke& stroke) override {
        commands.emplace_back(draw::StrokeRoundedRect{rect, radius, stroke});
    }
    void fillCircle(Point center, double radius, const Color& color) override {
        commands.emplace_back(draw::FillCircle{center, radius, color});
    }
    void strokeCircle(Point center, double radius, const Stroke& stroke) override {
        commands.emplace_back(draw::StrokeCircle{center, radius, stroke});
    }
    void fillWedge(const Wedge& wedge, const Color& color) override {
        commands.emplace_back(draw::FillWedge{wedge, color});
    }
    void drawText(std::string_view text, Point center, const TextStyle& style) override {
        commands.emplace_back(draw::Text{std::string(text), center, style});
    }
    void save() override { commands.emplace_back(draw::Save{}); }
    void restore() override { commands.emplace_back(draw::Restore{}); }
    void translate(double dx, double dy) override {
        commands.emplace_back(draw::Translate{dx, dy});
    }
    void scale(double factor) override { commands.emplace_back(draw::Scale{factor}); }
    void clipRoundedRect(const Rect& rect, double radius) override {
        commands.emplace_back(draw::ClipRoundedRect{rect, radius});
    }
};

}  // namespace kalvo::tests
