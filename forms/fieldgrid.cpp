#include "forms/fieldgrid.h"

#include <QGridLayout>
#include <QResizeEvent>

namespace {

// Width from which two columns read better than one, in average characters of the font.
constexpr int kTwoColumnsChars = 88;

} // namespace

FieldGrid::FieldGrid(QWidget* parent) : QWidget(parent) {}

void FieldGrid::SetSlots(std::vector<QWidget*> slotLabels, std::vector<QWidget*> slotFields) {
    labels = std::move(slotLabels);
    fields = std::move(slotFields);
    columns = 0;
    Arrange();
}

void FieldGrid::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Arrange();
}

void FieldGrid::Arrange() {
    const int wanted = width() >= kTwoColumnsChars * fontMetrics().averageCharWidth() ? 2 : 1;
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (wanted == columns || grid == nullptr) {
        return;
    }
    columns = wanted;
    for (int slot = 0; slot < static_cast<int>(labels.size()); ++slot) {
        grid->removeWidget(labels[slot]);
        grid->removeWidget(fields[slot]);
        const int column = slot % columns * 2;
        grid->addWidget(labels[slot], slot / columns, column);
        grid->addWidget(fields[slot], slot / columns, column + 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, columns > 1 ? 1 : 0);
}
