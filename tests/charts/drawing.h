#pragma once

#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "platform/recording_canvas.h"

/// What a chart draws, for tests: its commands, and comparisons that leave room for the last bits
/// of a double.
namespace kalvo::charts {

template <class View>
platform::RecordingCanvas drawn(const View& view, platform::Size size) {
    platform::RecordingCanvas canvas;
    view.draw(canvas, size);
    return canvas;
}

constexpr double kTiny = 1e-9;  // points

inline testing::Matcher<const platform::Point&> isAt(double x, double y) {
    return testing::AllOf(testing::Field(&platform::Point::x, testing::DoubleNear(x, kTiny)),
                          testing::Field(&platform::Point::y, testing::DoubleNear(y, kTiny)));
}

inline testing::Matcher<const platform::Rect&> isRect(const platform::Rect& rect) {
    using platform::Rect;
    return testing::AllOf(testing::Field(&Rect::x, testing::DoubleNear(rect.x, kTiny)),
                          testing::Field(&Rect::y, testing::DoubleNear(rect.y, kTiny)),
                          testing::Field(&Rect::width, testing::DoubleNear(rect.width, kTiny)),
                          testing::Field(&Rect::height, testing::DoubleNear(rect.height, kTiny)));
}

/// A filled rectangle.
inline testing::Matcher<const platform::draw::FillRect&> isFill(const platform::Rect& rect,
                                                                const platform::Color& color) {
    return testing::AllOf(testing::Field(&platform::draw::FillRect::rect, isRect(rect)),
                          testing::Field(&platform::draw::FillRect::color, color));
}

inline testing::Matcher<const platform::draw::Text&> isText(const std::string& text,
                                                            platform::Point centre,
                                                            const platform::TextStyle& style) {
    using platform::draw::Text;
    return testing::AllOf(testing::Field(&Text::text, text),
                          testing::Field(&Text::centre, isAt(centre.x, centre.y)),
                          testing::Field(&Text::style, style));
}

/// A line between two points.
inline testing::Matcher<const platform::draw::StrokePath&> isLine(platform::Point from,
                                                                  platform::Point to,
                                                                  const platform::Stroke& stroke) {
    using platform::Path;
    using platform::Polyline;
    using platform::draw::StrokePath;
    const auto line =
        testing::AllOf(testing::Field(&Polyline::points,
                                      testing::ElementsAre(isAt(from.x, from.y), isAt(to.x, to.y))),
                       testing::Field(&Polyline::closed, false));
    return testing::AllOf(
        testing::Field(&StrokePath::path,
                       testing::Field(&Path::polylines, testing::ElementsAre(line))),
        testing::Field(&StrokePath::stroke, stroke));
}

/// Checks that a picture stands on the common frame: paper, clip, content, border.
inline void expectFrame(const platform::RecordingCanvas& canvas, platform::Size size) {
    using namespace platform;
    const Rect paper{0, 0, size.width, size.height};
    const std::vector<draw::Command>& commands = canvas.commands;
    ASSERT_GT(commands.size(), 5u);
    EXPECT_EQ(commands[0], (draw::Command{draw::FillRoundedRect{paper, 6, kWhite}}));
    EXPECT_EQ(commands[1], draw::Command{draw::Save{}});
    EXPECT_EQ(commands[2], (draw::Command{draw::ClipRoundedRect{paper, 6}}));
    EXPECT_EQ(commands[commands.size() - 2], draw::Command{draw::Restore{}});
    EXPECT_EQ(commands.back(),
              (draw::Command{draw::StrokeRoundedRect{paper, 6, {kGray.withOpacity(0.2), 1}}}));
}

}  // namespace kalvo::charts
