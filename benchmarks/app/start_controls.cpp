// What a Qt Widgets program costs that shows as many plain controls as the full window, in as many
// fonts, and nothing else: no picture of its own, no data, no style.

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "benchmarks/app/first_frame.h"
#include "ui/after_paint.h"

namespace {

/// The first frame of the full window is written in 10 fonts from 7 to 14 pixels.
QFont fontNumber(int number) {
    constexpr int kSizes = 7;
    constexpr int kFonts = 10;
    QFont font = QApplication::font();
    font.setPixelSize(7 + number % kFonts % kSizes);
    font.setBold(number % kFonts >= kSizes);
    return font;
}

/// 2 lists, 2 fields, 8 choices, 7 buttons and 17 labels, as the full window has.
QVBoxLayout* makeControls() {
    auto* controls = new QVBoxLayout;
    auto* form = new QFormLayout;
    controls->addLayout(form);
    for (int row = 0; row < 2; ++row) {
        form->addRow(QStringLiteral("Elenco %1").arg(row), new QComboBox);
        form->addRow(QStringLiteral("Campo %1").arg(row), new QLineEdit);
    }
    for (int choice = 0; choice < 8; ++choice) {
        controls->addWidget(new QRadioButton(QStringLiteral("Scelta %1").arg(choice)));
    }
    for (int button = 0; button < 7; ++button) {
        controls->addWidget(new QPushButton(QStringLiteral("Bottone %1").arg(button)));
    }
    for (int number = 0; number < 13; ++number) {
        auto* label = new QLabel(QStringLiteral("Testo del carattere %1").arg(number));
        label->setFont(fontNumber(number));
        controls->addWidget(label);
    }
    return controls;
}

QTableWidget* makeTable() {
    auto* table = new QTableWidget(7, 13);
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            table->setItem(row, column, new QTableWidgetItem(QString::number(row * column)));
        }
    }
    return table;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(1320, 880);
    auto* columns = new QHBoxLayout(&window);
    columns->addLayout(makeControls());
    columns->addWidget(makeTable());
    auto* menus = new QMenuBar;
    for (const char* title : {"Uno", "Due", "Tre"}) menus->addMenu(QString::fromUtf8(title));
    columns->setMenuBar(menus);
    kalvo::ui::afterNextPaint(window, kalvo::benchmarks::endAtFirstFrame);
    window.show();
    return QApplication::exec();
}
