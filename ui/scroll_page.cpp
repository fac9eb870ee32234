#include "ui/scroll_page.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

namespace kalvo::ui {

ScrollPage::ScrollPage(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The parts that have the focus hand on the keys that scroll.
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { showFocus(now); });
}

ScrollPage::~ScrollPage() {
    // The focus changes once more while the parts end, when this is no page any longer.
    disconnect(qApp, nullptr, this, nullptr);
}

void ScrollPage::showFocus(QWidget* focused) {
    // The area's own bars may take the focus too.
    const QWidget* const page = widget();
    if (page == nullptr || focused == nullptr || !page->isAncestorOf(focused)) return;
    // What the pointer has pressed must not move away below it.
    if (!window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
    constexpr int kMargin = 16;  // points
    const QRect place(focused->mapTo(page, QPoint()), focused->size());
    // The whole of it: of a table the area by itself would show just the current cell.
    ensureVisible(place.center().x(), place.center().y(), 0, place.height() / 2 + kMargin);
}

void ScrollPage::keyPressEvent(QKeyEvent* event) {
    QScrollBar* bar = verticalScrollBar();
    if (bar->minimum() == bar->maximum()) {
        event->ignore();
    } else if (event->key() == Qt::Key_Home) {
        bar->triggerAction(QScrollBar::SliderToMinimum);
    } else if (event->key() == Qt::Key_End) {
        bar->triggerAction(QScrollBar::SliderToMaximum);
    } else {
        QScrollArea::keyPressEvent(event);
    }
}

}  // namespace kalvo::ui
