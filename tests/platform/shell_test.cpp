#include "platform/shell.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// Stands in for the desktop's own tools: each writes its argument beside itself, copies a file that
// it names, and ends with the code in EXIT_CODE.
constexpr char kTool[] = "#!/bin/sh\n"
                         "printf '%s' \"$1\" > \"$0.said\"\n"
                         "if [ -f \"$1\" ]; then cp \"$1\" \"$0.got\"; fi\n"
                         "exit ${EXIT_CODE:-0}\n";

class Shell : public testing::Test {
protected:
    void SetUp() override {
        path = qgetenv("PATH");
        qputenv("PATH", home.path().toUtf8() + ':' + path);
        sheet.setFileName(home.filePath("ficha 1.html"));
        ASSERT_TRUE(sheet.open(QIODevice::WriteOnly));
        sheet.write("<meta charset=utf-8><h1>Ático</h1>");
        sheet.close();
    }
    void TearDown() override {
        qputenv("PATH", path);
        qunsetenv("EXIT_CODE");
    }

    void MakeTool(const QString& name) const {
        QFile tool(home.filePath(name));
        ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
        tool.write(kTool);
        tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QByteArray Read(const QString& name) const {
        QFile file(home.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    QTemporaryDir home;
    QFile sheet;
    QByteArray path;
};

} // namespace

TEST_F(Shell, TargetsReachTheHandlerAsTheyStand) {
    MakeTool("xdg-open");
    const QString mail = "mailto:&Subject='Información: Ático'&Body='(Escriba aquí)'";
    for (const QString& target : {mail, QString("http://ejemplo.es/a b"), sheet.fileName()}) {
        EXPECT_TRUE(OpenWithSystem(target));
        EXPECT_EQ(Read("xdg-open.said"), target.toUtf8());
    }
}

TEST_F(Shell, WhatCannotBeOpenedOrPrintedIsFalse) {
    MakeTool("xdg-open");
    MakeTool("lp");
    EXPECT_FALSE(OpenWithSystem(""));
    EXPECT_FALSE(OpenWithSystem(home.filePath("missing.pdf")));
    EXPECT_FALSE(PrintWithSystem(home.filePath("missing.html")));
    EXPECT_EQ(Read("xdg-open.said"), "none");
    qputenv("EXIT_CODE", "3");
    EXPECT_FALSE(OpenWithSystem(sheet.fileName()));
    qputenv("PATH", "/nowhere");
    EXPECT_FALSE(OpenWithSystem(sheet.fileName()));
    EXPECT_FALSE(PrintWithSystem(sheet.fileName()));
}

TEST_F(Shell, PageIsLaidOutBeforeItIsPrinted) {
    MakeTool("lp");
    ASSERT_TRUE(PrintWithSystem(sheet.fileName()));
    EXPECT_TRUE(Read("lp.said").endsWith("ficha 1.pdf"));
    EXPECT_TRUE(Read("lp.got").startsWith("%PDF-"));
}
