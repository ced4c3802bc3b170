// The rows of the product list and the state that goes with them, below everything that fills or
// follows the list. Owns that state; productlist and the commands change it as they fill the list.
#pragma once

#include <QString>
#include <vector>

extern std::vector<int> ProductIds; // ProductId of each row, in row order

// The list's statement with filter and order; empty before the first fill.
extern QString CurrentListSQL;

extern QString SelectedRef;    // reference of the row selected before a refresh
extern int SortColumn;         // 0 reference, 1 description, 2 price; 0 at start
extern bool SortDescending;    // false at start
extern int FeaturedCount;      // listed products "En Portada"
extern bool NewProductPending; // a new product has not found its place in the list yet

// Appends the row of a product just created and selects it.
void AppendNewProductRow();

// Writes one cell of the selected row if it differs.
void UpdateListRow(int column, const QString& text);

// Colours a row (from 0) by status and keeps FeaturedCount, by the status that cboIsNew's tag
// remembers.
void MarkListRow(int row, int status);

// All of the state as at start: for another catalogue in place of this one.
void ResetProductList();

int ListRowCount();
int SelectedRow(); // from 0; -1 when the list is empty
void SelectRow(int row);
