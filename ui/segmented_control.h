#pragma once

#include <vector>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QStringList>
#include <QWidget>

namespace kalvo::ui {

/// A choice of one among a few, side by side in one track with a raised thumb on the chosen one.
/// Its segments are radio buttons to screen readers and to the keyboard: one of them takes the
/// focus, the arrow keys choose. Where the segments' equal shares are too narrow for the texts, the
/// texts become smaller, and at last the shares follow the texts.
class SegmentedControl final : public QWidget {
    Q_OBJECT

 public:
    /// The title names the control for screen readers; the first segment is chosen.
    SegmentedControl(const QString& title, const QStringList& segments, QWidget* parent = nullptr);

    /// The chosen segment, from 0.
    [[nodiscard]] int index() const { return group_->checkedId(); }
    /// Chooses a segment without a signal; an index out of range leaves the choice.
    void setIndex(int index);

    /// Says of every segment, in its tooltip and to screen readers, what the choice is for.
    void setNote(const QString& note);

 signals:
    /// The user has chosen another segment.
    void indexChosen(int index);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    class Segment;

    QButtonGroup* group_;
    QHBoxLayout* row_;
    std::vector<Segment*> segments_;
};

}  // namespace kalvo::ui
