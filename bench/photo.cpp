#include "bench/photo.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

quint32 Hash(quint32 x) {
    x = (x ^ (x >> 16)) * 0x7feb352d;
    x = (x ^ (x >> 15)) * 0x846ca68b;
    return x ^ (x >> 16);
}

float LatticeValue(int x, int y, int layer) {
    return float(
               Hash(quint32(x) * 73856093U ^ quint32(y) * 19349663U ^ quint32(layer) * 83492791U) &
               0xFFFF) /
               65535.0F -
           0.5F;
}

// Adds smooth noise whose bumps are `cell` pixels wide.
void AddNoise(std::vector<float>& plane, float cell, float height, int layer) {
    const auto smooth = [](float t) { return t * t * (3 - 2 * t); };
    for (int y = 0; y < kPhotoSize.height(); ++y) {
        const int row = int(float(y) / cell);
        const float v = smooth(float(y) / cell - float(row));
        float* to = plane.data() + std::size_t(y) * kPhotoSize.width();
        for (int x = 0; x < kPhotoSize.width(); ++x) {
            const int column = int(float(x) / cell);
            const float u = smooth(float(x) / cell - float(column));
            const float upper = std::lerp(LatticeValue(column, row, layer),
                                          LatticeValue(column + 1, row, layer), u);
            const float lower = std::lerp(LatticeValue(column, row + 1, layer),
                                          LatticeValue(column + 1, row + 1, layer), u);
            to[x] += height * std::lerp(upper, lower, v);
        }
    }
}

// Sharp-edged discs and bars in front of the noise.
void AddThings(std::vector<float>& plane, int layer) {
    for (quint32 i = 0; i < 200; ++i) {
        const float centerX = float(Hash(i * 7 + 1) % quint32(kPhotoSize.width()));
        const float centerY = float(Hash(i * 7 + 2) % quint32(kPhotoSize.height()));
        const float radiusX = 20 + float(Hash(i * 7 + 3) % 200);
        const float radiusY = 20 + float(Hash(i * 7 + 4) % 200);
        const bool isBar = (Hash(i * 7 + 5) & 1) != 0;
        const float height = LatticeValue(int(i), 5, layer) * 140;
        const int top = std::max(0, int(centerY - radiusY));
        const int bottom = std::min(kPhotoSize.height(), int(centerY + radiusY));
        for (int y = top; y < bottom; ++y) {
            const float v = (float(y) - centerY) / radiusY;
            const float half = isBar ? radiusX : radiusX * std::sqrt(std::max(0.0F, 1 - v * v));
            const int left = std::max(0, int(centerX - half));
            const int right = std::min(kPhotoSize.width(), int(centerX + half));
            for (int x = left; x < right; ++x) {
                plane[std::size_t(y) * kPhotoSize.width() + x] += height;
            }
        }
    }
}

} // namespace

QImage MakePhoto() {
    const std::size_t count = std::size_t(kPhotoSize.width()) * kPhotoSize.height();
    std::vector<float> light(count, 120.0F);
    std::vector<float> warmth(count, 0.0F);
    int layer = 0;
    float height = 90;
    for (float cell = 1300; cell >= 2; cell /= 2, height *= 0.72F) {
        AddNoise(light, cell, height, ++layer);
    }
    for (float cell = 1300, patch = 60; cell >= 8; cell /= 2, patch *= 0.6F) {
        AddNoise(warmth, cell, patch, ++layer);
    }
    AddThings(light, 1000);
    AddThings(warmth, 1001);
    QImage photo(kPhotoSize, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); ++x) {
            const std::size_t i = std::size_t(y) * photo.width() + x;
            const auto level = [&](float value, int channel) {
                return std::clamp(int(value + 16 * LatticeValue(x, y, 2000 + channel)), 0, 255);
            };
            row[x] = qRgb(level(light[i] + warmth[i], 0), level(light[i] - 0.3F * warmth[i], 1),
                          level(light[i] - warmth[i], 2));
        }
    }
    return photo;
}
