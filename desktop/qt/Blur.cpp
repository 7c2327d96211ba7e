#include "desktop/qt/Blur.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quillon::desktop {

namespace {

/// The weights from the middle to one side; with those of the other side they add up to 1.
std::vector<double> gaussianHalf(qreal deviation) {
    std::vector<double> weights(static_cast<std::size_t>(qCeil(blurReach(deviation))) + 1);
    double sum = 0;
    for (std::size_t distance = 0; distance < weights.size(); ++distance) {
        const double deviations = static_cast<double>(distance) / deviation;
        weights[distance] = std::exp(-deviations * deviations / 2);
        sum += distance == 0 ? weights[0] : 2 * weights[distance];
    }
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

/// Coverage from 0 to 1, row by row.
struct Coverage {
    int width = 0;
    int height = 0;
    std::vector<double> values;

    double at(int x, int y) const {
        return x < 0 || y < 0 || x >= width || y >= height
                   ? 0
                   : values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                            static_cast<std::size_t>(x)];
    }
};

/// Blurred along the rows, with rows and columns exchanged: done twice, it is blurred both ways and
/// stands upright again.
Coverage blurredAndTurned(const Coverage& source, const std::vector<double>& half) {
    Coverage turned{source.height, source.width, {}};
    turned.values.reserve(source.values.size());
    for (int x = 0; x < source.width; ++x) {
        for (int y = 0; y < source.height; ++y) {
            double sum = half[0] * source.at(x, y);
            for (int distance = 1; distance < static_cast<int>(half.size()); ++distance) {
                sum += half[static_cast<std::size_t>(distance)] *
                       (source.at(x - distance, y) + source.at(x + distance, y));
            }
            turned.values.push_back(sum);
        }
    }
    return turned;
}

Coverage coverageOf(const QImage& picture) {
    Coverage coverage{picture.width(), picture.height(), {}};
    coverage.values.reserve(static_cast<std::size_t>(picture.width()) *
                            static_cast<std::size_t>(picture.height()));
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            coverage.values.push_back(qAlpha(picture.pixel(x, y)) / 255.0);
        }
    }
    return coverage;
}

} // namespace

QImage blurred(const QImage& picture, qreal deviation) {
    if (picture.isNull() || !(deviation > 0)) {
        return picture;
    }
    const auto half = gaussianHalf(deviation);
    const Coverage coverage = blurredAndTurned(blurredAndTurned(coverageOf(picture), half), half);
    QImage result(picture.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < result.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            row[x] = qRgba(0, 0, 0, qRound(255 * std::min(coverage.at(x, y), 1.0)));
        }
    }
    return result;
}

QImage tinted(const QImage& picture, const QColor& color) {
    QImage result = picture;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), color);
    return result;
}

} // namespace quillon::desktop
