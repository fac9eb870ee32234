#include "app/qt/about_panel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/branding.h"
#include "base/qt/qstring.h"
#include "ui/theme.h"

namespace kalvo::app {

namespace {

using ui::FontStyle;
using ui::FontWeight;
using ui::TextRole;

constexpr int kIconSize = 64;  // points

}  // namespace

AboutPanel::AboutPanel(QWidget* parent) : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Informazioni su Kalvo Wind & Solar"));

    auto* icon = new QLabel;
    icon->setPixmap(windowIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
    icon->setVisible(!windowIcon().isNull());
    QLabel* name =
        ui::makeLabel(base::toQString(kApplicationName), FontStyle::kTitle3, FontWeight::kBold);
    QLabel* credits =
        ui::makeLabel(QStringLiteral("%1\n%2\nInformativa sulla privacy: %3")
                          .arg(base::toQString(kDeveloperCredit), base::toQString(kCopyright),
                               base::toQString(kWebAddress)),
                      FontStyle::kCaption2, FontWeight::kRegular, TextRole::kSecondary);
    credits->setAlignment(Qt::AlignHCenter);
    // Wide enough for the window's title and its buttons.
    constexpr int kTitleWidth = 380;  // points
    credits->setMinimumWidth(kTitleWidth);

    auto* close = new QPushButton(QStringLiteral("&Chiudi"));
    close->setProperty("prominent", true);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 24, 32, 20);
    column->setSpacing(12);
    for (QWidget* part : {static_cast<QWidget*>(icon), static_cast<QWidget*>(name),
                          static_cast<QWidget*>(credits), static_cast<QWidget*>(close)}) {
        column->addWidget(part, 0, Qt::AlignHCenter);
    }
    column->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace kalvo::app
