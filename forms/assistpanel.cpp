#include "forms/assistpanel.h"

#include <QEvent>

namespace {

class TipFollower : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ToolTipChange) {
            auto* button = qobject_cast<QWidget*>(watched);
            button->setAccessibleName(button->toolTip());
        }
        return false;
    }
};

// The panel is told by the toolkit when its size or the text in it has changed.
class TextSizer : public QObject {
public:
    TextSizer(QWidget* textPanel, QLabel* shownText)
        : QObject(textPanel), panel(textPanel), text(shownText) {
        panel->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest ||
            event->type() == QEvent::Show) {
            text->resize(panel->width(), text->heightForWidth(panel->width()));
        }
        return false;
    }

private:
    QWidget* panel;
    QLabel* text;
};

} // namespace

void FollowTips(const std::vector<QToolButton*>& buttons) {
    for (QToolButton* button : buttons) {
        button->installEventFilter(new TipFollower(button));
    }
}

void KeepTextWidth(QWidget* panel, QLabel* text) {
    new TextSizer(panel, text);
}
