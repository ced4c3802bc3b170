// The tabs of the main, configuration and company forms: a row of fraTabs frames, each with a
// picture and a caption that can be clicked, above pages of which one shows.
#pragma once

#include <QToolButton>
#include <vector>

class QFrame;

// A caption that tells which tab is on top but never changes that by itself: the handler of a click
// decides whether the page may be shown.
class TabButton : public QToolButton {
    Q_OBJECT

public:
    explicit TabButton(QWidget* parent = nullptr);

protected:
    void nextCheckState() override {}
};

// Shows page `index` alone and marks its tab. An index that no page has hides them all.
void ShowTabPage(const std::vector<QFrame*>& tabs, const std::vector<TabButton*>& captions,
                 const std::vector<QWidget*>& pages, int index);
