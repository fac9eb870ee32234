#pragma once

#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "tests/support/recording_canvas.h"

/// What a view draws, a line of text a command, so that a test can say it as a list. Numbers are
/// points, rounded where a double's last bits would tell; colors are hexadecimal.
namespace kalvo::tests {

namespace drawing {
using namespace graphics;
using namespace draw;

inline std::string text(double value) {
    const bool hasNoise = std::abs(value) < 1e6;
    return fmt::format("{:.6g}", hasNoise ? std::round(value * 1e6) / 1e6 + 0.0 : value);
}
inline std::string text(Point at) { return text(at.x) + "," + text(at.y); }
inline std::string text(const Rect& rect) {
    return text(Point{rect.x, rect.y}) + " " + text(rect.width) + "x" + text(rect.height);
}
inline std::string text(const Color& color) {
    const auto byte = [](double part) { return std::lround(part * 255); };
    const std::string opacity = color.opacity == 1 ? "" : "@" + text(color.opacity);
    if (color.withOpacity(1) == kGray) return "gray" + opacity;
    return fmt::format("#{:02x}{:02x}{:02x}{}", byte(color.red), byte(color.green),
                       byte(color.blue), opacity);
}
inline std::string text(const Stroke& stroke) {
    std::string found = text(stroke.color) + " " + text(stroke.width);
    for (const double length : stroke.dash) found += "-" + text(length);
    return found;
}
inline std::string text(const Path& path) {
    std::string found;
    for (const Polyline& line : path.polylines) {
        found += line.closed ? "closed" : "open";
        for (const Point& point : line.points) found += " " + text(point);
    }
    return found;
}
inline std::string text(const LineBatch& lines) {
    return fmt::format("{} of {} points", lines.starts.size(), lines.points.size());
}
inline std::string text(const Wedge& wedge) {
    return fmt::format("{} {} from {} to {}", text(wedge.center), text(wedge.radius),
                       text(wedge.startBearing), text(wedge.endBearing));
}
inline std::string text(const TextStyle& style) {
    return text(style.color) + " " + text(style.size) + (style.bold ? " bold" : "");
}
inline std::string text(const std::string& words) { return words; }

template <class... Parts>
std::string line(const char* kind, const Parts&... parts) {
    std::string found = kind;
    ((found += " " + text(parts)), ...);
    return found;
}

struct Describe {
    auto operator()(const FillPath& c) { return line("area", c.color, c.path); }
    auto operator()(const StrokePath& c) { return line("line", c.stroke, c.path); }
    auto operator()(const StrokeLines& c) { return line("lines", c.color, c.width, c.lines); }
    auto operator()(const FillRect& c) { return line("fill", c.color, c.rect); }
    auto operator()(const FillRoundedRect& c) { return line("round", c.color, c.rect, c.radius); }
    auto operator()(const StrokeRoundedRect& c) {
        return line("frame", c.stroke, c.rect, c.radius);
    }
    auto operator()(const FillCircle& c) { return line("disc", c.color, c.center, c.radius); }
    auto operator()(const StrokeCircle& c) { return line("ring", c.stroke, c.center, c.radius); }
    auto operator()(const FillWedge& c) { return line("wedge", c.color, c.wedge); }
    auto operator()(const Text& c) { return line("text", c.text, c.style, c.center); }
    auto operator()(const Save&) { return line("save"); }
    auto operator()(const Restore&) { return line("restore"); }
    auto operator()(const Translate& c) { return line("move", c.dx, c.dy); }
    auto operator()(const Scale& c) { return line("scale", c.factor); }
    auto operator()(const ClipRoundedRect& c) { return line("clip", c.rect, c.radius); }
};
}  // namespace drawing

/// The commands of one kind (its first word), or all of them.
[[nodiscard]] inline std::vector<std::string> described(const tests::RecordingCanvas& canvas,
                                                        const std::string& kind = "") {
    std::vector<std::string> found;
    for (const draw::Command& command : canvas.commands) {
        const std::string line = std::visit(drawing::Describe(), command);
        if (kind.empty() || line.starts_with(kind + " ")) found.push_back(line);
    }
    return found;
}

template <class View>
[[nodiscard]] std::vector<std::string> drawn(const View& view,
                                             graphics::Size size,
                                             const std::string& kind = "") {
    tests::RecordingCanvas canvas;
    view.draw(canvas, size);
    return described(canvas, kind);
}

}  // namespace kalvo::tests
