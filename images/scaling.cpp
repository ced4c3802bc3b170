#include "images/scaling.h"

#include "images/picture.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kChannels = 4; // bytes of a pixel

// Source pixels of a cell in one direction: sums of a column stay within 16 bits.
constexpr int kMaxCell = 128;

// Weights are fractions of 2^14; values between the two passes have 6 binary places.
constexpr int kWeightBits = 14;
constexpr int kValueBits = 6;
constexpr int kVerticalShift = kWeightBits - kValueBits;
constexpr int kHorizontalShift = kWeightBits + kValueBits;

// Bytes of a row that are summed together: the sums stay in the nearest cache.
constexpr int kStrip = 512;

// Reach of the filter in output pixels, or in source pixels where the picture grows.
constexpr double kFilterReach = 2.0;

// The source pixels of one output pixel, along one direction.
struct Taps {
    int first = 0;
    std::vector<qint16> weights;
};

// Edges of `count` cells over `length` pixels, as even as whole pixels allow; count + 1 numbers.
std::vector<int> CellEdges(int length, int count) {
    std::vector<int> edges(std::size_t(count) + 1);
    for (int i = 0; i <= count; ++i) {
        edges[i] = int((qint64(i) * length * 2 + count) / (qint64(count) * 2));
    }
    return edges;
}

void AddRow(const uchar* row, quint16* sums, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        sums[i] = quint16(sums[i] + row[i]);
    }
}

void AverageCells(const quint16* sums, const std::vector<int>& edges, int rows, QRgb* to) {
    for (std::size_t cell = 0; cell + 1 < edges.size(); ++cell) {
        quint32 total[kChannels] = {};
        for (int x = edges[cell]; x < edges[cell + 1]; ++x) {
            for (int channel = 0; channel < kChannels; ++channel) {
                total[channel] += sums[x * kChannels + channel];
            }
        }
        const quint32 area = quint32(rows * (edges[cell + 1] - edges[cell]));
        const quint64 share = ((quint64(1) << 32) + area - 1) / area;
        auto* pixel = reinterpret_cast<uchar*>(to + cell);
        for (int channel = 0; channel < kChannels; ++channel) {
            pixel[channel] = uchar(((total[channel] + area / 2) * share) >> 32);
        }
    }
}

QImage AverageBoxes(const QImage& source, int columns, int rows) {
    const std::vector<int> columnEdges = CellEdges(source.width(), columns);
    const std::vector<int> rowEdges = CellEdges(source.height(), rows);
    const int bytes = source.width() * kChannels;
    std::vector<quint16> sums(bytes);
    QImage result = AllocatePicture(QSize(columns, rows));
    for (int row = 0; row < rows; ++row) {
        std::fill(sums.begin(), sums.end(), quint16(0));
        for (int y = rowEdges[row]; y < rowEdges[row + 1]; ++y) {
            AddRow(source.constScanLine(y), sums.data(), bytes);
        }
        AverageCells(sums.data(), columnEdges, rowEdges[row + 1] - rowEdges[row],
                     reinterpret_cast<QRgb*>(result.scanLine(row)));
    }
    return result;
}

// Catmull-Rom: a little sharper than the mean of what a pixel covers, without visible halos, and
// exact where nothing is scaled.
double FilterValue(double distance) {
    const double x = std::abs(distance);
    if (x < 1) {
        return (1.5 * x - 2.5) * x * x + 1;
    }
    return x < kFilterReach ? ((-0.5 * x + 2.5) * x - 4) * x + 2 : 0;
}

// Rounded so that they still sum to one: no picture gets lighter or darker.
std::vector<qint16> WholeWeights(const std::vector<double>& weights) {
    constexpr int kOne = 1 << kWeightBits;
    double sum = 0;
    for (const double weight : weights) {
        sum += weight;
    }
    std::vector<qint16> whole(weights.size());
    int rest = kOne;
    for (std::size_t i = 0; i < weights.size(); ++i) {
        whole[i] = qint16(std::lround(weights[i] / sum * kOne));
        rest -= whole[i];
    }
    *std::max_element(whole.begin(), whole.end()) += qint16(rest);
    return whole;
}

// The picture goes on beyond its edges as it is there.
std::vector<Taps> MakeTaps(int sourceLength, int length) {
    const double step = double(sourceLength) / length;
    const double stretch = std::max(step, 1.0);
    const double reach = kFilterReach * stretch;
    std::vector<Taps> taps(length);
    for (int i = 0; i < length; ++i) {
        const double center = (i + 0.5) * step;
        const int begin = int(std::floor(center - reach));
        const int end = int(std::ceil(center + reach));
        const int first = std::clamp(begin, 0, sourceLength - 1);
        const int last = std::clamp(end - 1, 0, sourceLength - 1);
        std::vector<double> weights(last - first + 1);
        for (int j = begin; j < end; ++j) {
            weights[std::clamp(j, first, last) - first] +=
                FilterValue((j + 0.5 - center) / stretch);
        }
        taps[i] = {first, WholeWeights(weights)};
    }
    return taps;
}

// One row of the output's height and the source's width.
void MixRows(const QImage& source, const Taps& taps, qint16* to) {
    const int bytes = source.width() * kChannels;
    for (int start = 0; start < bytes; start += kStrip) {
        const int count = std::min(kStrip, bytes - start);
        qint32 sums[kStrip];
        std::fill_n(sums, kStrip, 1 << (kVerticalShift - 1));
        for (std::size_t j = 0; j < taps.weights.size(); ++j) {
            const uchar* row = source.constScanLine(taps.first + int(j)) + start;
            const qint16 weight = taps.weights[j];
            for (int i = 0; i < count; ++i) {
                sums[i] += qint16(row[i]) * weight;
            }
        }
        for (int i = 0; i < count; ++i) {
            to[start + i] = qint16(sums[i] >> kVerticalShift);
        }
    }
}

void MixColumns(const qint16* row, const std::vector<Taps>& taps, QRgb* to) {
    for (std::size_t x = 0; x < taps.size(); ++x) {
        qint32 sums[kChannels];
        std::fill_n(sums, kChannels, 1 << (kHorizontalShift - 1));
        const qint16* pixel = row + qsizetype(taps[x].first) * kChannels;
        for (const qint16 weight : taps[x].weights) {
            for (int channel = 0; channel < kChannels; ++channel) {
                sums[channel] += pixel[channel] * weight;
            }
            pixel += kChannels;
        }
        auto* mixed = reinterpret_cast<uchar*>(to + x);
        for (int channel = 0; channel < kChannels; ++channel) {
            mixed[channel] = uchar(std::clamp(sums[channel] >> kHorizontalShift, 0, 255));
        }
    }
}

QImage AsRgb32(const QImage& source) {
    QImage image = source.convertToFormat(QImage::Format_RGB32);
    if (image.isNull()) {
        throw TooLargePicture(source.size());
    }
    return image;
}

int ReducedSide(int side, int needed) {
    const int cell = std::clamp(int(side / (2 * qint64(needed))), 1, kMaxCell);
    return side / cell;
}

} // namespace

QImage ShrinkPicture(const QImage& source, QSize neededSize) {
    QImage image = AsRgb32(source);
    while (true) {
        const QSize reduced(ReducedSide(image.width(), neededSize.width()),
                            ReducedSide(image.height(), neededSize.height()));
        if (reduced == image.size()) {
            return image;
        }
        image = AverageBoxes(image, reduced.width(), reduced.height());
    }
}

QImage ScalePicture(const QImage& source, QSize size) {
    const QImage image = ShrinkPicture(source, size);
    const std::vector<Taps> columnTaps = MakeTaps(image.width(), size.width());
    const std::vector<Taps> rowTaps = MakeTaps(image.height(), size.height());
    std::vector<qint16> row(std::size_t(image.width()) * kChannels);
    QImage result = AllocatePicture(size);
    for (int y = 0; y < size.height(); ++y) {
        MixRows(image, rowTaps[y], row.data());
        MixColumns(row.data(), columnTaps, reinterpret_cast<QRgb*>(result.scanLine(y)));
    }
    return result;
}
