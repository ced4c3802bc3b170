#include "images/colors.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <lcms2.h>

namespace {

struct ProfileCloser {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;

struct TransformDeleter {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, TransformDeleter>;

constexpr cmsUInt32Number kQrgb = TYPE_BGRA_8; // QRgb on a little-endian machine

// Profiles this close to sRGB, in levels of 255, are sRGB with other roundings.
constexpr int kSameLevels = 1;

class ProfileConverter : public ColorConverter {
public:
    explicit ProfileConverter(Transform transform) : transform_(std::move(transform)) {}
    void ConvertRow(const uchar* from, QRgb* to, int width) override {
        cmsDoTransform(transform_.get(), from, to, cmsUInt32Number(width));
        for (int x = 0; x < width; ++x) {
            to[x] |= 0xFF000000;
        }
    }

private:
    Transform transform_;
};

class PlainCmykConverter : public ColorConverter {
public:
    explicit PlainCmykConverter(bool inverted) : mask_(inverted ? 0 : 255) {}
    void ConvertRow(const uchar* from, QRgb* to, int width) override {
        const uchar* inks = from;
        for (int x = 0; x < width; ++x, inks += 4) {
            const int light = inks[3] ^ mask_;
            to[x] = qRgb(Share(inks[0], light), Share(inks[1], light), Share(inks[2], light));
        }
    }

private:
    int Share(uchar ink, int light) const { return ((ink ^ mask_) * light + 127) / 255; }
    int mask_;
};

cmsUInt32Number PixelType(ColorModel model, bool inverted) {
    switch (model) {
    case ColorModel::Grey:
        return TYPE_GRAY_8;
    case ColorModel::Cmyk:
        return inverted ? TYPE_CMYK_8_REV : TYPE_CMYK_8;
    default:
        return kQrgb;
    }
}

cmsColorSpaceSignature Space(ColorModel model) {
    switch (model) {
    case ColorModel::Grey:
        return cmsSigGrayData;
    case ColorModel::Cmyk:
        return cmsSigCmykData;
    default:
        return cmsSigRgbData;
    }
}

int Difference(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

// Whether greys and a lattice of colours come out as they went in.
bool ChangesNothing(cmsHTRANSFORM transform, ColorModel model) {
    std::array<QRgb, 256 + 729> before{};
    std::array<QRgb, 256 + 729> after{};
    for (int i = 0; i < 256; ++i) {
        before[i] = qRgb(i, i, i);
    }
    for (int i = 0; i < 729; ++i) {
        before[256 + i] = qRgb(i % 9 * 255 / 8, i / 9 % 9 * 255 / 8, i / 81 * 255 / 8);
    }
    const int count = model == ColorModel::Grey ? 256 : int(before.size());
    if (model == ColorModel::Grey) {
        std::array<uchar, 256> greys;
        for (int i = 0; i < 256; ++i) {
            greys[i] = uchar(i);
        }
        cmsDoTransform(transform, greys.data(), after.data(), 256);
    } else {
        cmsDoTransform(transform, before.data(), after.data(), cmsUInt32Number(count));
    }
    for (int i = 0; i < count; ++i) {
        if (Difference(before[i], after[i]) > kSameLevels) {
            return false;
        }
    }
    return true;
}

std::unique_ptr<ColorConverter> MakeConverter(cmsHPROFILE profile, ColorModel model,
                                              bool inverted) {
    const Profile srgb(cmsCreate_sRGBProfile());
    Transform transform(cmsCreateTransform(profile, PixelType(model, inverted), srgb.get(), kQrgb,
                                           INTENT_RELATIVE_COLORIMETRIC,
                                           cmsFLAGS_BLACKPOINTCOMPENSATION));
    if (!transform || (model != ColorModel::Cmyk && ChangesNothing(transform.get(), model))) {
        return nullptr;
    }
    return std::make_unique<ProfileConverter>(std::move(transform));
}

} // namespace

std::unique_ptr<ColorConverter> MakeProfileConverter(QByteArrayView profile, ColorModel model,
                                                     bool inverted) {
    if (profile.isEmpty()) {
        return nullptr;
    }
    const Profile opened(cmsOpenProfileFromMem(profile.data(), cmsUInt32Number(profile.size())));
    if (!opened || cmsGetColorSpace(opened.get()) != Space(model)) {
        return nullptr;
    }
    return MakeConverter(opened.get(), model, inverted);
}

std::unique_ptr<ColorConverter> MakeAdobeRgbConverter() {
    // Adobe RGB (1998) Color Image Encoding, 4.3: primaries, white point D65, gamma 2 51/256.
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 2.19921875);
    cmsToneCurve* curves[3] = {curve, curve, curve};
    const Profile profile(cmsCreateRGBProfile(&white, &primaries, curves));
    cmsFreeToneCurve(curve);
    return MakeConverter(profile.get(), ColorModel::Rgb, false);
}

std::unique_ptr<ColorConverter> MakePlainCmykConverter(bool inverted) {
    return std::make_unique<PlainCmykConverter>(inverted);
}
