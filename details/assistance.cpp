#include "details/assistance.h"

#include "core/settings.h"
#include "platform/controlevents.h"
#include "platform/controls.h"
#include "store/languages.h"
#include "store/store.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QToolButton>

namespace {

// %1 table, %2 item, %3 number of the text, %4 the language on screen.
constexpr char kOtherLanguageStatement[] =
    "SELECT TOP 1 FieldValue, LangCode FROM MultiLangFields WHERE TableName='%1' AND ItemId='%2' "
    "AND FieldDefId=%3 AND LangCode<>'%4' AND FieldValue is not null AND trim(FieldValue)<>''";

constexpr char kPanelName[] = "fraLangAssist";
constexpr int kTopLimit = 30; // the text is not scrolled down beyond it, pixels
constexpr int kStepsPerBox = 4;

int BoxIndex(const AssistPanel& panel, const QWidget* control) {
    const auto found = std::find(panel.boxes.begin(), panel.boxes.end(), control);
    return found == panel.boxes.end() ? -1 : static_cast<int>(found - panel.boxes.begin());
}

void Scroll(const AssistPanel& panel, int direction) {
    const auto index = static_cast<std::size_t>(Tag(panel.fraLangAssist).toInt());
    const int step = panel.boxes.at(index)->height() / kStepsPerBox;
    QLabel* text = panel.lblToTranslate;
    if (direction > 0) {
        text->move(text->x(), text->y() - step);
    } else if (text->y() + step < kTopLimit) {
        text->move(text->x(), text->y() + step);
    }
}

// As the user would type it, so that it counts as an edit.
void TypeText(QWidget* box, const QString& text) {
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->selectAll();
        line->insert(text);
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(box)) {
        lines->selectAll();
        lines->insertPlainText(text);
    }
}

void TakeOver(const AssistPanel& panel) {
    QWidget* box = panel.boxes.at(static_cast<std::size_t>(Tag(panel.fraLangAssist).toInt()));
    const QString text = panel.lblToTranslate->text();
    panel.fraLangAssist->hide();
    box->setFocus();
    TypeText(box, text);
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(box, &tab);
}

// A label tells of no double click by itself.
class DoubleClicks : public QObject {
public:
    DoubleClicks(AssistPanel owner) : QObject(owner.lblToTranslate), panel(std::move(owner)) {
        panel.lblToTranslate->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonDblClick) {
            return false;
        }
        TakeOver(panel);
        return true;
    }

private:
    AssistPanel panel;
};

} // namespace

void ConnectAssistance(const AssistPanel& panel, ControlEvents* events, QString (*itemId)()) {
    QObject::connect(events, &ControlEvents::gotFocus, panel.fraLangAssist,
                     [panel, itemId](QWidget* control) {
                         const int index = BoxIndex(panel, control);
                         if (index >= 0 && ControlText(control).isEmpty()) {
                             ShowLangAssist(panel, itemId(), index);
                         }
                     });
    QObject::connect(events, &ControlEvents::lostFocus, panel.fraLangAssist,
                     [panel](QWidget* control, const QWidget* next) {
                         if (BoxIndex(panel, control) >= 0 &&
                             !(next != nullptr && panel.fraLangAssist->isAncestorOf(next))) {
                             panel.fraLangAssist->hide();
                         }
                     });
    for (std::size_t arrow = 0; arrow < panel.lblLangScroll.size(); ++arrow) {
        QObject::connect(panel.lblLangScroll[arrow], &QToolButton::pressed, panel.fraLangAssist,
                         [panel, arrow] { Scroll(panel, arrow == 0 ? -1 : 1); });
    }
    new DoubleClicks(panel);
}

void ShowLangAssist(const AssistPanel& panel, const QString& itemId, int index) {
    RunQuery(kCursorScratch, QString(kOtherLanguageStatement)
                                 .replace("%1", TextTableName(panel.table))
                                 .replace("%2", itemId)
                                 .replace("%3", QString::number(index))
                                 .replace("%4", UICurrentLang));
    const Recordset& other = adcData[kCursorScratch];
    if (!other.HasRow()) {
        return;
    }
    panel.lblToTranslate->setText(other.Text(0));
    panel.lblToTranslate->setToolTip(LanguageCaption(other.Text(1)));
    panel.lblToTranslate->move(panel.lblToTranslate->x(), 0);
    SetTag(panel.fraLangAssist, QString::number(index));
    panel.fraLangAssist->show();
}

void LeaveAssistance(QWidget* form) {
    if (auto* panel = form->findChild<QFrame*>(kPanelName)) {
        panel->hide();
    }
}
