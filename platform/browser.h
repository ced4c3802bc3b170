// The embedded browser: it shows the finished site in a window and lays out pages for the printer.
//
// The engine is large, so it lies in a module of its own beside the program, which is loaded when
// it is first needed: a start doesn't pay for it, and without it the program runs and says that it
// can't show or print.
#pragma once

#include <QString>

class QWidget;

// A view inside `parent`, which owns it; its window title is the page's. Null without the engine.
QWidget* MakeBrowserView(QWidget* parent);

// Shows a local file in a view made here.
void BrowseTo(QWidget* view, const QString& path);

// Writes a local page as a PDF file, laid out with its print style. False when the page can't be
// loaded or written within half a minute, or there is no engine. Yields to the event loop.
bool WritePagePdf(const QString& htmlPath, const QString& pdfPath);
