#include "ui/search_field.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/control_painter.h"
#include "ui/icons.h"
#include "ui/theme.h"

namespace kalvo::ui {

namespace {

constexpr int kSymbolSize = 16;  // points
constexpr int kHitSize = 24;

class ClearButton final : public QAbstractButton {
 public:
    explicit ClearButton(QWidget* parent) : QAbstractButton(parent) {
        setAccessibleName(QStringLiteral("Cancella"));
        setToolTip(QStringLiteral("Cancella (Esc)"));
        // Esc does the same: the tabulator need not stop here.
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::ArrowCursor);
        resize(kHitSize, kHitSize);
    }

 protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Theme& theme = Theme::current();
        const QColor color = underMouse() || isDown() ? theme.text : theme.tertiaryText;
        constexpr int kInset = (kHitSize - kSymbolSize) / 2;
        QPainter painter(this);
        painter.drawPixmap(kInset, kInset,
                           symbolPixmap(QStringLiteral("xmark.circle.fill"), kSymbolSize, color,
                                        devicePixelRatioF()));
    }
};

}  // namespace

SearchField::SearchField(QWidget* parent) : QLineEdit(parent) {
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& text) { showClearButton(!text.isEmpty()); });
}

void SearchField::showClearButton(bool shown) {
    if (clear_ == nullptr) {
        if (!shown) return;
        clear_ = new ClearButton(this);
        connect(clear_, &QAbstractButton::clicked, this, [this] {
            clearTyped();
            setFocus(Qt::MouseFocusReason);
        });
        placeClearButton();
    }
    clear_->setVisible(shown);
    setTextMargins(0, 0, shown ? kHitSize : 0, 0);
}

void SearchField::placeClearButton() {
    const QRect contents = fieldContents(rect());
    clear_->move(contents.right() + 1 - (kHitSize + kSymbolSize) / 2,
                 contents.center().y() + 1 - kHitSize / 2);
}

void SearchField::clearTyped() {
    clear();
    emit textEdited(QString());
}

void SearchField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    if (clear_ != nullptr) placeClearButton();
}

bool SearchField::event(QEvent* event) {
    // Else a dialog or a shortcut would take the key.
    if (event->type() == QEvent::ShortcutOverride && !text().isEmpty() &&
        dynamic_cast<const QKeyEvent&>(*event).key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void SearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clearTyped();
    } else if (event->key() == Qt::Key_Down) {
        emit listRequested();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

}  // namespace kalvo::ui
