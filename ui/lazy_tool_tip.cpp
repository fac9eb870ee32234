#include "ui/lazy_tool_tip.h"

#include <utility>

#include <QHelpEvent>
#include <QToolTip>

#include "ui/tool_tip.h"

namespace kalvo::ui {

namespace {

class ToolTipSource final : public QObject {
 public:
    ToolTipSource(QWidget& widget, std::function<QString()> text)
        : QObject(&widget), widget_(widget), text_(std::move(text)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return false;
        QToolTip::showText(dynamic_cast<const QHelpEvent&>(*event).globalPos(),
                           plainToolTip(text_()), &widget_);
        return true;
    }

 private:
    QWidget& widget_;
    std::function<QString()> text_;
};

}  // namespace

void setLazyToolTip(QWidget& widget, std::function<QString()> text) {
    new ToolTipSource(widget, std::move(text));
}

}  // namespace kalvo::ui
