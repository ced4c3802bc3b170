#include "platform/shell.h"

#include "tests/support/files.h"

#include <gtest/gtest.h>

namespace {

class Shell : public testing::Test {
protected:
    QTemporaryDir home;
    QString sheet = WriteFile(home.filePath("ficha 1.html"), "<meta charset=utf-8><h1>Ático</h1>");
};

} // namespace

TEST_F(Shell, TargetsReachTheHandlerAsTheyStand) {
    const DesktopTools tools({"xdg-open"});
    const QString mail = "mailto:&Subject='Información: Ático'&Body='(Escriba aquí)'";
    for (const QString& target : {mail, QString("http://ejemplo.es/a b"), sheet}) {
        EXPECT_TRUE(OpenWithSystem(target));
        EXPECT_EQ(tools.Said("xdg-open"), target.toUtf8());
    }
}

TEST_F(Shell, WhatCannotBeOpenedOrPrintedIsFalse) {
    const DesktopTools tools({"xdg-open", "lp"});
    EXPECT_FALSE(OpenWithSystem(""));
    EXPECT_FALSE(OpenWithSystem(home.filePath("missing.pdf")));
    EXPECT_FALSE(PrintWithSystem(home.filePath("missing.html")));
    EXPECT_EQ(tools.Said("xdg-open"), "(none)");
    qputenv("EXIT_CODE", "3");
    EXPECT_FALSE(OpenWithSystem(sheet));
    qputenv("PATH", "/nowhere");
    EXPECT_FALSE(OpenWithSystem(sheet));
    EXPECT_FALSE(PrintWithSystem(sheet));
}

TEST_F(Shell, PageIsLaidOutBeforeItIsPrinted) {
    const DesktopTools tools({"lp"});
    ASSERT_TRUE(PrintWithSystem(sheet));
    EXPECT_TRUE(tools.Said("lp").endsWith("ficha 1.pdf"));
    EXPECT_TRUE(tools.Got("lp").startsWith("%PDF-"));
}
