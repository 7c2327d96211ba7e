#include "desktop/qt/settings/AboutWidget.h"

#include "desktop/qt/Appearance.h"
#include "desktop/qt/QtImages.h"
#include "desktop/qt/TextStyles.h"
#include "desktop/qt/settings/RoleLabel.h"
#include "desktop/qt/widgets/Divider.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace quillon::desktop {

namespace {

constexpr int kPadding = 16;
constexpr int kFactSymbolSize = 16;

/// A symbol in the colour of its part, or an asset in its own.
class Picture : public QWidget {
public:
    Picture(Image image, QSize size, SystemColor tint)
        : m_image(std::move(image))
        , m_tint(tint) {
        setFixedSize(size);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        if (m_image.kind == Image::Kind::asset) {
            QtImages::icon(m_image, SymbolTint::none).paint(&painter, rect());
            return;
        }
        painter.drawPixmap(0, 0,
                           QtImages::symbolPixmap(QString::fromStdString(m_image.name), size(),
                                                  devicePixelRatio(), toQColor(m_tint, palette())));
    }

private:
    Image m_image;
    SystemColor m_tint;
};

QWidget* makeText(const std::string& string, const QFont& font, SystemColor role) {
    auto* label = new RoleLabel(role);
    label->setText(QString::fromStdString(string));
    label->setFont(font);
    return label;
}

} // namespace

AboutWidget::AboutWidget(const AboutPage& page, QWidget* parent)
    : QWidget(parent) {
    setAccessibleName(QString::fromStdString(page.navigationTitle));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    column->setSpacing(qRound(AboutPage::spacing));
    column->addStretch();

    const QSize iconSize(qRound(AboutPage::iconSize.width), qRound(AboutPage::iconSize.height));
    QWidget* const icon = page.icon
                              ? new Picture(*page.icon, iconSize, SystemColor::controlAccentColor)
                              : new QWidget(this);
    icon->setFixedSize(iconSize);
    column->addWidget(icon, 0, Qt::AlignHCenter);
    column->addWidget(makeText(page.name, textStyle::title(), SystemColor::labelColor), 0,
                      Qt::AlignHCenter);
    column->addWidget(
        makeText(page.purpose, textStyle::headline(), SystemColor::secondaryLabelColor), 0,
        Qt::AlignHCenter);
    column->addWidget(Divider::across());

    auto* facts = new QWidget;
    auto* lines = new QVBoxLayout(facts);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(qRound(AboutPage::lineSpacing));
    for (const AboutLine& fact : page.lines) {
        auto* line = new QHBoxLayout;
        line->setSpacing(kFactSymbolSize / 2);
        line->addWidget(new Picture(Image{Image::Kind::symbol, fact.symbol, {}, {}},
                                    {kFactSymbolSize, kFactSymbolSize},
                                    SystemColor::secondaryLabelColor));
        line->addWidget(
            makeText(fact.text, textStyle::subheadline(), SystemColor::secondaryLabelColor));
        line->addStretch();
        lines->addLayout(line);
    }
    column->addWidget(facts, 0, Qt::AlignHCenter);
    column->addStretch();
}

} // namespace quillon::desktop
