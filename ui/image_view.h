#pragma once

#include <filesystem>
#include <optional>

#include <QPixmap>
#include <QWidget>

namespace kalvo::ui {

/// An image in a frame of fixed size. The variant for the display's scale ("@2x") is found beside
/// the file.
class ImageView final : public QWidget {
    Q_OBJECT

 public:
    /// How an image that has another shape than the frame is scaled.
    enum class Scaling { kFit, kFill };

    /// `cornerRadius` (points) clips the image; a rounded one gets a hairline round it, so that a
    /// white image has an edge.
    ImageView(const QSize& frame, Scaling scaling, double cornerRadius, QWidget* parent = nullptr);

    /// Shows the image of a PNG file, or nothing. Returns whether there is one to show.
    bool setImage(const std::optional<std::filesystem::path>& path);
    /// Shows a symbol in the brand's color.
    void setSymbol(const QString& name, int size);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Scaling scaling_;
    double cornerRadius_;
    std::optional<std::filesystem::path> path_;
    QPixmap image_;
};

}  // namespace kalvo::ui
