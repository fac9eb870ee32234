#pragma once

#include <QString>

namespace kalvo::ui {

/// Returns a tooltip that shows `text` as it is: Qt would take "< 2 km/h" for markup, and a name
/// from the web can be markup. Lines end only where the text ends them.
[[nodiscard]] inline QString plainToolTip(const QString& text) {
    if (text.isEmpty()) return {};
    return QStringLiteral("<div style='white-space:pre'>%1</div>").arg(text.toHtmlEscaped());
}

}  // namespace kalvo::ui
