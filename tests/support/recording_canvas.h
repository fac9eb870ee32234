#pragma once

#include <array>
#include <cmath>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "graphics/canvas.h"

namespace kalvo::tests {

/// A canvas that writes down what it is told, one line of text a command, so that a test can
/// compare a whole picture with a list. Lengths and coordinates are points, rounded where a
/// double's last bits would show; colors are hexadecimal, with their opacity after an "@".
class RecordingCanvas : public graphics::Canvas {
 public:
    std::vector<std::string> commands;

    /// Returns the commands of one kind (their first word), in order; of none: all.
    [[nodiscard]] std::vector<std::string> ofKind(const std::string& kind) const {
        std::vector<std::string> found;
        for (const std::string& command : commands) {
            if (kind.empty() || command.starts_with(kind + " ")) found.push_back(command);
        }
        return found;
    }

    void fillPath(const graphics::Path& path, const graphics::Color& color) override {
        record("area", color, path);
    }
    void strokePath(const graphics::Path& path, const graphics::Stroke& stroke) override {
        record("line", stroke, path);
    }
    void strokeLines(const graphics::LineBatch& lines,
                     const graphics::Color& color,
                     double width) override {
        record("lines", color, width, lines);
    }
    void fillRect(const graphics::Rect& rect, const graphics::Color& color) override {
        record("fill", color, rect);
    }
    void fillRoundedRect(const graphics::Rect& rect,
                         double radius,
                         const graphics::Color& color) override {
        record("round", color, rect, radius);
    }
    void strokeRoundedRect(const graphics::Rect& rect,
                           double radius,
                           const graphics::Stroke& stroke) override {
        record("frame", stroke, rect, radius);
    }
    void fillCircle(graphics::Point center, double radius, const graphics::Color& color) override {
        record("disc", color, center, radius);
    }
    void strokeCircle(graphics::Point center,
                      double radius,
                      const graphics::Stroke& stroke) override {
        record("ring", stroke, center, radius);
    }
    void fillWedge(const graphics::Wedge& wedge, const graphics::Color& color) override {
        record("wedge", color, wedge);
    }
    void drawText(std::string_view text,
                  graphics::Point center,
                  const graphics::TextStyle& style) override {
        record("text", text, style, center);
    }
    void drawTextLine(std::string_view words,
                      graphics::Point baseline,
                      graphics::TextAlignment alignment,
                      const graphics::TextStyle& style) override {
        static constexpr std::array<std::string_view, 3> kEnds{"left", "center", "right"};
        record("words", words, style, kEnds.at(static_cast<std::size_t>(alignment)), baseline);
    }
    /// Takes every byte for half as wide as the font is large.
    [[nodiscard]] double textWidth(std::string_view words,
                                   const graphics::TextStyle& style) const override {
        return static_cast<double>(words.size()) * style.size / 2;
    }
    void drawPicture(const std::filesystem::path& file, const graphics::Rect& rect) override {
        record("picture", std::string_view(file.filename().string()), rect);
    }
    void save() override { record("save"); }
    void restore() override { record("restore"); }
    void translate(double dx, double dy) override { record("move", dx, dy); }
    void scale(double factor) override { record("scale", factor); }
    void clipRoundedRect(const graphics::Rect& rect, double radius) override {
        record("clip", rect, radius);
    }

 private:
    template <class... Parts>
    void record(std::string command, const Parts&... parts) {
        ((command += " " + text(parts)), ...);
        commands.push_back(command);
    }

    static std::string text(std::string_view words) { return std::string(words); }
    static std::string text(double value) {
        const bool isOrdinary = std::abs(value) < 1e6;
        return isOrdinary ? fmt::format("{:.6g}", std::round(value * 1e6) / 1e6 + 0.0)
                          : fmt::format("{:.12g}", value);
    }
    static std::string text(graphics::Point at) { return text(at.x) + "," + text(at.y); }
    static std::string text(const graphics::Rect& rect) {
        return text(graphics::Point{rect.x, rect.y}) + " " + text(rect.width) + "x" +
               text(rect.height);
    }
    static std::string text(const graphics::Color& color) {
        const auto byte = [](double part) { return std::lround(part * 255); };
        const std::string opacity = color.opacity == 1 ? "" : "@" + text(color.opacity);
        if (color.withOpacity(1) == graphics::kGray) return "gray" + opacity;
        return fmt::format("#{:02x}{:02x}{:02x}{}", byte(color.red), byte(color.green),
                           byte(color.blue), opacity);
    }
    static std::string text(const graphics::Stroke& stroke) {
        std::string found = text(stroke.color) + " " + text(stroke.width);
        for (const double length : stroke.dash) found += "-" + text(length);
        return stroke.join == graphics::LineJoin::kRound ? found + " round" : found;
    }
    static std::string text(std::span<const graphics::Point> points) {
        std::string found;
        for (const graphics::Point& point : points) found += " " + text(point);
        return found;
    }
    static std::string text(const graphics::Path& path) {
        std::string found;
        for (const graphics::Polyline& line : path.polylines) {
            found += (line.closed ? "closed" : "open") + text(std::span(line.points));
        }
        return found;
    }
    /// A few points are all told, of many only how many there are.
    static std::string text(const graphics::LineBatch& lines) {
        constexpr std::size_t kFew = 60;
        if (lines.points.size() > kFew) {
            return fmt::format("{} of {} points", lines.lineCount(), lines.points.size());
        }
        std::string found;
        for (std::size_t i = 0; i < lines.lineCount(); ++i) {
            found += (i == 0 ? "open" : " open") + text(lines.line(i));
        }
        return found;
    }
    static std::string text(const graphics::Wedge& wedge) {
        return fmt::format("{} {} from {} to {}", text(wedge.center), text(wedge.radius),
                           text(wedge.startBearing), text(wedge.endBearing));
    }
    static std::string text(const graphics::TextStyle& style) {
        return text(style.color) + " " + text(style.size) + (style.bold ? " bold" : "") +
               (style.tabular ? " tabular" : "");
    }
};

}  // namespace kalvo::tests
