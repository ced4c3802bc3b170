#include "forms/look.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QIconEngine>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QStyle>
#include <QSvgRenderer>

namespace {

constexpr char kStyleSheet[] = ":/look/look.qss";
constexpr char kInkProperty[] = "ink";
constexpr char kRoleProperty[] = "role";

// Every icon file is drawn in this colour, which stands for the palette's text colour.
constexpr char kFileInk[] = "#000000";
constexpr char kFileAccent[] = "#2f80d8"; // the family's second colour

constexpr double kDisabledOpacity = 0.38;
constexpr double kTitleScale = 1.3;    // of the desktop's font
constexpr double kHeadingScale = 1.08; // likewise
constexpr int kLabelIconSize = 20;     // pixels at 96 dots per inch

enum class Drawing {
    AsFiled,
    Inked,    // with the palette's text colour
    OneColour // on a highlighted button: everything in the colour of its text
};

// Draws an SVG file in any size.
class SvgEngine : public QIconEngine {
public:
    SvgEngine(QString svgFile, Drawing howDrawn) : file(std::move(svgFile)), drawing(howDrawn) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QFile source(file);
        if (!source.open(QIODevice::ReadOnly)) {
            return;
        }
        QByteArray shapes = source.readAll();
        const QByteArray ink = Ink(mode).name().toLatin1();
        if (drawing != Drawing::AsFiled) {
            shapes.replace(kFileInk, ink);
        }
        if (drawing == Drawing::OneColour) {
            shapes.replace(kFileAccent, ink);
        }
        QSvgRenderer renderer(shapes);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        painter->save();
        if (mode == QIcon::Disabled) {
            painter->setOpacity(kDisabledOpacity);
        }
        renderer.render(painter, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const QString key = QString("%1 %2x%3 %4 %5")
                                .arg(file)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(static_cast<int>(mode))
                                .arg(Ink(mode).name() + QString::number(static_cast<int>(drawing)));
        QPixmap drawn;
        if (!QPixmapCache::find(key, &drawn)) {
            drawn = QPixmap(size);
            drawn.fill(Qt::transparent);
            QPainter painter(&drawn);
            paint(&painter, QRect(QPoint(0, 0), size), mode, state);
            painter.end();
            QPixmapCache::insert(key, drawn);
        }
        return drawn;
    }

    QIconEngine* clone() const override { return new SvgEngine(*this); }

private:
    QColor Ink(QIcon::Mode mode) const {
        const bool highlighted = mode == QIcon::Selected || drawing == Drawing::OneColour;
        return QApplication::palette().color(highlighted ? QPalette::HighlightedText
                                                         : QPalette::WindowText);
    }

    QString file;
    Drawing drawing;
};

QIcon SvgIcon(const QString& file, Drawing drawing) {
    return QFile::exists(file) ? QIcon(new SvgEngine(file, drawing)) : QIcon();
}

QString IconFile(const QString& name) {
    return ":/icons/" + name + ".svg";
}

void ScaleFont(QWidget* control, double scale, QFont::Weight weight) {
    QFont font = control->font();
    font.setPointSizeF(QApplication::font().pointSizeF() * scale);
    font.setWeight(weight);
    control->setFont(font);
}

// A notice with colours of its own keeps the icon as it was drawn, dark.
Drawing DrawingOf(const QLabel* label) {
    const bool ownColours = label->parent()->property(kRoleProperty).toString() == u"warning";
    return ownColours ? Drawing::AsFiled : Drawing::Inked;
}

void DressLabels(QWidget* form) {
    for (QLabel* label : form->findChildren<QLabel*>()) {
        const QString ink = label->property(kInkProperty).toString();
        if (!ink.isEmpty()) {
            const QIcon icon = SvgIcon(IconFile(ink), DrawingOf(label));
            label->setPixmap(
                icon.pixmap(QSize(kLabelIconSize, kLabelIconSize), form->devicePixelRatioF()));
        }
    }
}

void DressFonts(QWidget* form) {
    for (QLabel* label : form->findChildren<QLabel*>()) {
        const QString role = label->property(kRoleProperty).toString();
        if (role == u"title") {
            ScaleFont(label, kTitleScale, QFont::DemiBold);
        } else if (role == u"heading") {
            ScaleFont(label, kHeadingScale, QFont::DemiBold);
        }
    }
}

void DressIcons(QWidget* form) {
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
        const QString ink = button->property(kInkProperty).toString();
        if (ink.isEmpty()) {
            continue;
        }
        const bool highlighted = button->property(kRoleProperty).toString() == u"primary";
        button->setIcon(highlighted ? SvgIcon(IconFile(ink), Drawing::OneColour) : InkIcon(ink));
    }
    for (QAction* action : form->findChildren<QAction*>()) {
        const QString ink = action->property(kInkProperty).toString();
        if (!ink.isEmpty()) {
            action->setIcon(InkIcon(ink));
        }
    }
}

void ApplyStyleSheet(QWidget* form) {
    QFile file(kStyleSheet);
    if (file.open(QIODevice::ReadOnly)) {
        form->setStyleSheet(QString::fromUtf8(file.readAll()));
    }
}

// Dresses its form anew when the desktop changes between light and dark.
class PaletteFollower : public QObject {
public:
    explicit PaletteFollower(QWidget* form) : QObject(form) { form->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange) {
            auto* form = qobject_cast<QWidget*>(watched);
            ApplyStyleSheet(form);
            DressLabels(form);
        }
        return false;
    }
};

} // namespace

QIcon InkIcon(const QString& name) {
    return SvgIcon(IconFile(name), Drawing::Inked);
}

QIcon FlagIcon(const QString& code) {
    return SvgIcon(":/flags/" + code.toUpper() + ".svg", Drawing::AsFiled);
}

QPixmap DrawPicture(const QString& name, QSize size, qreal ratio) {
    Q_INIT_RESOURCE(resources);
    return SvgIcon(":/pictures/" + name + ".svg", Drawing::AsFiled).pixmap(size, ratio);
}

void DressForm(QWidget* form) {
    Q_INIT_RESOURCE(resources);
    ApplyStyleSheet(form);
    DressFonts(form);
    DressIcons(form);
    DressLabels(form);
    new PaletteFollower(form);
}

void SetLookFlag(QWidget* control, const char* flag, bool value) {
    control->setProperty(flag, value);
    control->style()->unpolish(control);
    control->style()->polish(control);
    control->update();
}
