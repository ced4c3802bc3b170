// A photograph of 12 megapixels to the two pictures that a site usually shows of it: fitted into
// 460 by 345, and exactly 120 by 90. CPU time and likeness beside vipsthumbnail and ImageMagick
// with one thread, from the same source, at the same JPEG quality. Exits with 1 where a goal is
// missed.
#include "bench/photo.h"
#include "images/jpegwriter.h"
#include "images/picturefile.h"
#include "images/scaling.h"
#include "pictures/picturesizes.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <utility>
#include <vector>

namespace {

constexpr QSize kLarge(460, 345);
constexpr QSize kSmall(120, 90);
constexpr int kRounds = 3;
constexpr double kTimeGoal = 0.5;    // of vipsthumbnail's CPU time, for JPEG
constexpr double kLanczosGoal = 0.6; // dB below vipsthumbnail at most

bool goalMissed = false;

void Judge(const char* goal, bool met) {
    std::printf("    %s: %s\n", goal, met ? "met" : "MISSED");
    goalMissed = goalMissed || !met;
}

// ---------------------------------------------------------------------------- the yardsticks

using Filter = double (*)(double); // weight by distance in output pixels

double BoxFilter(double x) {
    return std::abs(x) < 0.5 ? 1 : 0;
}

double Lanczos3(double x) {
    if (x == 0) {
        return 1;
    }
    const double a = M_PI * x;
    return std::abs(x) < 3 ? 3 * std::sin(a) * std::sin(a / 3) / (a * a) : 0;
}

// Weights of the source pixels for each output pixel; a box counts pixels by what it covers.
std::vector<std::pair<int, std::vector<double>>> Weights(int from, int to, Filter filter,
                                                         double reach) {
    const double step = double(from) / to;
    std::vector<std::pair<int, std::vector<double>>> all(to);
    for (int i = 0; i < to; ++i) {
        const double center = (i + 0.5) * step;
        const int first = std::max(0, int(std::floor(center - reach * step)));
        const int end = std::min(from, int(std::ceil(center + reach * step - 1e-9)));
        std::vector<double> weights;
        double sum = 0;
        for (int j = first; j < end; ++j) {
            const double covered = std::min(j + 1.0, center + reach * step) -
                                   std::max<double>(j, center - reach * step);
            weights.push_back(filter == BoxFilter ? covered : filter((j + 0.5 - center) / step));
            sum += weights.back();
        }
        for (double& weight : weights) {
            weight /= sum;
        }
        all[i] = {first, weights};
    }
    return all;
}

// Three channels a pixel, in exact numbers.
std::vector<double> ScaleExactly(const QImage& source, QSize size, Filter filter, double reach) {
    const auto columns = Weights(source.width(), size.width(), filter, reach);
    const auto rows = Weights(source.height(), size.height(), filter, reach);
    const std::size_t rowLength = std::size_t(size.width()) * 3;
    std::vector<double> narrow(rowLength * source.height());
    for (int y = 0; y < source.height(); ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        double* to = narrow.data() + rowLength * y;
        for (const auto& [first, weights] : columns) {
            for (std::size_t j = 0; j < weights.size(); ++j) {
                const QRgb pixel = pixels[first + int(j)];
                to[0] += weights[j] * qRed(pixel);
                to[1] += weights[j] * qGreen(pixel);
                to[2] += weights[j] * qBlue(pixel);
            }
            to += 3;
        }
    }
    std::vector<double> scaled(rowLength * size.height());
    for (int y = 0; y < size.height(); ++y) {
        const auto& [first, weights] = rows[y];
        for (std::size_t j = 0; j < weights.size(); ++j) {
            const double* from = narrow.data() + rowLength * (first + j);
            for (std::size_t i = 0; i < rowLength; ++i) {
                scaled[rowLength * y + i] += weights[j] * from[i];
            }
        }
    }
    return scaled;
}

// Decibels.
double Likeness(const QImage& image, const std::vector<double>& reference) {
    double squares = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const double* exact = reference.data() + (std::size_t(y) * image.width() + x) * 3;
            const int levels[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
            for (int channel = 0; channel < 3; ++channel) {
                const double error = levels[channel] - std::clamp(exact[channel], 0.0, 255.0);
                squares += error * error;
            }
        }
    }
    return 10 * std::log10(255.0 * 255.0 * 3 * image.width() * image.height() / squares);
}

// ------------------------------------------------------------------------------------- runs

double CpuMilliseconds(int who) {
    rusage usage{};
    getrusage(who, &usage);
    const auto milliseconds = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

// The least of some rounds.
double BestTime(int who, const std::function<void()>& run) {
    double best = 1e9;
    for (int i = 0; i < kRounds; ++i) {
        const double start = CpuMilliseconds(who);
        run();
        best = std::min(best, CpuMilliseconds(who) - start);
    }
    return best;
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        std::fprintf(stderr, "can't write %s\n", qPrintable(path));
        std::exit(2);
    }
}

void RunProgram(const QString& program, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VIPS_CONCURRENCY", "1");
    environment.insert("MAGICK_THREAD_LIMIT", "1");
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        std::fprintf(stderr, "%s failed\n", qPrintable(program));
        std::exit(2);
    }
}

// What the program does for a product's picture, with the two outputs on disk.
void RunOurs(const QString& source, const QString& stem) {
    const QSize large = FitPictureInto(ReadPictureSize(source), kLarge, 0);
    const DecodedPicture picture = ReadPicture(source, large.expandedTo(kSmall));
    Write(stem + "large.jpg", EncodeJpeg(ScalePicture(picture.image, large)));
    Write(stem + "small.jpg", EncodeJpeg(ScalePicture(picture.image, kSmall)));
}

void RunVips(const QString& source, const QString& stem) {
    RunProgram("vipsthumbnail", {source, "-s", "460x345", "-o", stem + "large.jpg[Q=80,strip]"});
    RunProgram("vipsthumbnail", {source, "-s", "120x90!", "-o", stem + "small.jpg[Q=80,strip]"});
}

void RunMagick(const QString& convert, const QString& source, const QString& stem) {
    RunProgram(convert,
               {source, "-quality", "80", "-strip", "(", "+clone", "-resize", "460x345", "-write",
                stem + "large.jpg", "+delete", ")", "-resize", "120x90!", stem + "small.jpg"});
}

void CompareLikeness(const QString& folder, const QImage& whole, const char* name, QSize size) {
    const QImage ours(folder + "ours_" + name + ".jpg");
    const QImage vips(folder + "vips_" + name + ".jpg");
    const std::vector<double> area = ScaleExactly(whole, size, BoxFilter, 0.5);
    const std::vector<double> lanczos = ScaleExactly(whole, size, Lanczos3, 3);
    std::printf("  %s, dB against area average: %.2f (vipsthumbnail %.2f), Lanczos: %.2f (%.2f)\n",
                name, Likeness(ours, area), Likeness(vips, area), Likeness(ours, lanczos),
                Likeness(vips, lanczos));
    Judge("area average no lower", Likeness(ours, area) >= Likeness(vips, area));
    Judge("Lanczos at most 0.6 lower",
          Likeness(ours, lanczos) >= Likeness(vips, lanczos) - kLanczosGoal);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString convert = QStandardPaths::findExecutable("convert-im6.q16", {"/usr/bin"});
    if (QStandardPaths::findExecutable("vipsthumbnail").isEmpty() || convert.isEmpty()) {
        std::fprintf(stderr, "needs vipsthumbnail (libvips-tools) and ImageMagick\n");
        return 2;
    }
    const QTemporaryDir temporary;
    const QString folder = temporary.path() + "/";
    const QImage photo = MakePhoto();
    photo.save(folder + "photo.jpg", "JPG", 92);
    photo.save(folder + "photo.bmp");
    photo.scaled(kSmall).save(folder + "tiny.jpg", "JPG");
    photo.scaled(kSmall).save(folder + "tiny.bmp");
    RunProgram(convert, {folder + "photo.bmp", folder + "photo.gif"});
    RunProgram(convert, {folder + "tiny.bmp", folder + "tiny.gif"});

    for (const char* kind : {"bmp", "gif", "jpg"}) {
        const QString source = folder + "photo." + kind;
        const QString tiny = folder + "tiny." + kind;
        const double starts = BestTime(RUSAGE_CHILDREN, [&] { RunVips(tiny, folder + "tiny_"); });
        const double ours = BestTime(RUSAGE_SELF, [&] { RunOurs(source, folder + "ours_"); });
        const double vips = BestTime(RUSAGE_CHILDREN, [&] { RunVips(source, folder + "vips_"); });
        const double magick =
            BestTime(RUSAGE_CHILDREN, [&] { RunMagick(convert, source, folder + "magick_"); });
        const bool isJpeg = QByteArray(kind) == "jpg";
        std::printf("%s, %.1f MB: %.0f ms CPU; vipsthumbnail %.0f (%.0f without its starts), "
                    "ratio %.2f; ImageMagick %.0f, ratio %.2f\n",
                    kind, double(QFile(source).size()) / 1e6, ours, vips, vips - starts,
                    ours / vips, magick, ours / magick);
        Judge(isJpeg ? "half of vipsthumbnail's time" : "no slower than the better one",
              isJpeg ? ours <= kTimeGoal * vips : ours <= std::min(vips, magick));
    }
    const QImage whole = ReadPicture(folder + "photo.jpg").image;
    CompareLikeness(folder, whole, "large", kLarge);
    CompareLikeness(folder, whole, "small", kSmall);
    return goalMissed ? 1 : 0;
}
