#include "images/picture.h"
#include "pictures/picturesizes.h"

#include <gtest/gtest.h>

TEST(PictureSizes, FittedPictureKeepsItsProportionsInsideTheBox) {
    const struct {
        QSize source;
        QSize box;
        int margin;
        QSize fitted;
    } kCases[] = {
        {{1000, 1000}, {460, 345}, 0, {345, 345}},
        {{1000, 500}, {460, 345}, 0, {460, 230}},
        {{4000, 3000}, {460, 345}, 0, {460, 345}},
        {{3000, 4000}, {460, 345}, 0, {259, 345}},
        {{10, 5}, {460, 345}, 0, {460, 230}},
        {{1000, 1000}, {460, 345}, 30, {315, 315}},
        {{100, 100}, {460, 345}, -150, {495, 495}},
        {{5000, 2}, {100, 100}, 0, {100, 1}},
        {{2, 5000}, {100, 100}, 0, {1, 100}},
        {{4, 10}, {100, 125}, 0, {50, 125}},
        {{200, 5}, {100, 100}, 0, {100, 2}},
        {{200, 7}, {100, 100}, 0, {100, 4}},
        {{0, 0}, {0, 0}, 0, {1, 1}},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(FitPictureInto(c.source, c.box, c.margin), c.fitted)
            << c.source.width() << "x" << c.source.height();
    }
}

TEST(PictureSizes, DemandIsReadFromTheParamsOrRefusedBySectionName) {
    TemplateSectionRecord section;
    section.Name = "t%%PICTUREID%%.jpg       ";
    const auto exact = [&](const QString& params) {
        section.Params = params;
        const auto demand = ReadExactSize(section);
        return demand ? demand->box : QSize();
    };
    EXPECT_EQ(exact("RESIZE=120X90;"), QSize(120, 90));
    EXPECT_EQ(exact("OPTIMALSIZE=460X345;RESIZE= 120X90px ;   "), QSize(120, 90));
    EXPECT_EQ(exact("OPTIMALSIZE=460X345;"), QSize());
    EXPECT_EQ(ReadFitSize(section)->box, QSize(460, 345));
    EXPECT_TRUE(ReadExactSize({.Name = "a", .Params = "RESIZE=1X1;"})->exact);
    EXPECT_FALSE(ReadFitSize(section)->exact);
    for (const char* params : {"RESIZE=120x90;", "RESIZE=0X90;", "RESIZE=120X;", "RESIZE=-5X5;",
                               "RESIZE=40000X9;", "RESIZE=grandeX9;", "RESIZE=32767X32767;"}) {
        try {
            exact(params);
            FAIL() << params;
        } catch (const PictureError& error) {
            EXPECT_TRUE(error.Text().contains("t%%PICTUREID%%.jpg de")) << params;
        }
    }
}
