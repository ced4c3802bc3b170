// What the program and the browser module beside it agree on.
#pragma once

class QString;
class QWidget;

inline constexpr char kBrowserModule[] = "liblumentabrowser";

using MakeViewFunction = QWidget* (*)(QWidget* parent);
using BrowseFunction = void (*)(QWidget* view, const QString& path);
using WritePdfFunction = bool (*)(const QString& htmlPath, const QString& pdfPath);

inline constexpr char kMakeViewName[] = "LumentaMakeView";
inline constexpr char kBrowseName[] = "LumentaBrowse";
inline constexpr char kWritePdfName[] = "LumentaWritePdf";

extern "C" {
QWidget* LumentaMakeView(QWidget* parent);
void LumentaBrowse(QWidget* view, const QString& path);
bool LumentaWritePdf(const QString& htmlPath, const QString& pdfPath);
}
