// Makes the manual that the program opens: makemanual MANUAL.md MANUAL.pdf. Exit code 0 when it was
// made.

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QTextDocument>
#include <cstdio>

namespace {

constexpr int kMargin = 20;   // millimetres on each side
constexpr int kFontSize = 11; // points
constexpr int kDotsPerInch = 96;

bool WriteManual(const QString& markdown, const QString& path) {
    QPdfWriter pdf(path);
    pdf.setTitle("Manual");
    pdf.setResolution(kDotsPerInch);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    if (!pdf.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin),
                            QPageLayout::Millimeter)) {
        return false;
    }
    QTextDocument document;
    document.setDefaultFont(QFont("DejaVu Sans", kFontSize));
    document.documentLayout()->setPaintDevice(&pdf);
    document.setPageSize(QSizeF(pdf.width(), pdf.height()));
    document.setMarkdown(markdown);
    document.print(&pdf);
    return QFile(path).size() > 0;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Uso: makemanual MANUAL.md MANUAL.pdf\n", stderr);
        return 2;
    }
    QFile source(arguments[1]);
    if (!source.open(QIODevice::ReadOnly) ||
        !WriteManual(QString::fromUtf8(source.readAll()), arguments[2])) {
        std::fprintf(stderr, "makemanual: no se puede hacer %s\n", qPrintable(arguments[2]));
        return 1;
    }
    return 0;
}
