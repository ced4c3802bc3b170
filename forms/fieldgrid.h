// The dynamic field slots of the editor: label and field side by side, in one column where it is
// narrow and in two where there is room. Rows run from left to right, so that the reading order is
// the order of the slots.
#pragma once

#include <QWidget>
#include <vector>

class FieldGrid : public QWidget {
    Q_OBJECT

public:
    explicit FieldGrid(QWidget* parent = nullptr);

    // The slots in order; both lists have the same length and live in the grid's layout.
    void SetSlots(std::vector<QWidget*> slotLabels, std::vector<QWidget*> slotFields);

    int Columns() const { return columns; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Arrange();

    std::vector<QWidget*> labels;
    std::vector<QWidget*> fields;
    int columns = 0;
};
