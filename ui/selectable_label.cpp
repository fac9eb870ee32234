#include "ui/selectable_label.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

namespace kalvo::ui {

namespace {

QString withoutBreakMarks(QString text) {
    constexpr QChar kZeroWidthSpace(0x200b);
    constexpr QChar kWordJoiner(0x2060);
    text.remove(kZeroWidthSpace).remove(kWordJoiner);
    text.replace(QChar::Nbsp, u' ');
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

}  // namespace

SelectableLabel::SelectableLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void SelectableLabel::enterEvent(QEnterEvent* /*event*/) {
    // Not before it can be used: the document behind a selection costs time and memory.
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

bool SelectableLabel::event(QEvent* event) {
    // Else a shortcut of the window would take the key.
    if (event->type() == QEvent::ShortcutOverride &&
        dynamic_cast<QKeyEvent&>(*event).matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QLabel::event(event);
}

void SelectableLabel::keyPressEvent(QKeyEvent* event) {
    event->matches(QKeySequence::Copy) ? copy() : QLabel::keyPressEvent(event);
}

void SelectableLabel::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* action = menu->addAction(
        hasSelectedText() ? QStringLiteral("Copia selezione") : QStringLiteral("Copia testo"), this,
        &SelectableLabel::copy);
    action->setShortcut(QKeySequence::Copy);
    action->setEnabled(!text().isEmpty());
    menu->popup(event->globalPos());
}

void SelectableLabel::copy() const {
    QGuiApplication::clipboard()->setText(
        withoutBreakMarks(hasSelectedText() ? selectedText() : text()));
}

}  // namespace kalvo::ui
