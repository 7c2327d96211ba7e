#pragma once

#include <QColor>
#include <QWidget>

namespace quillon::desktop {

/// Shows a colour and takes no click.
class Swatch : public QWidget {
public:
    struct Face {
        QSizeF size;
        qreal cornerRadius = 0;
        /// Over the edge of the colour, within the size.
        QColor border;
        qreal borderWidth = 1;
    };
    explicit Swatch(const Face& face, QWidget* parent = nullptr);

    void setColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Face m_face;
    QColor m_color;
};

} // namespace quillon::desktop
