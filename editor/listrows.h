// The rows of the product list and what is known of them, below everything that fills or follows
// the list. Owns ProductIds, FeaturedCount and NewProductPending.
#pragma once

#include "forms/productlistmodel.h"

#include <QString>
#include <vector>

extern std::vector<int> ProductIds; // ProductId of each row, in row order
extern int FeaturedCount;           // listed products "En Portada"
extern bool NewProductPending;      // a new product has not found its place in the list yet

// All rows anew, with the ProductId of each; none is selected.
void SetListRows(std::vector<int> ids, std::vector<ProductRow> rows);

// Appends the row of a product just created and selects it; it is pending from now on.
void AppendNewProductRow();

// The pending product goes to its place or away.
void SettleNewProduct();

// Takes a row out. FeaturedCount stays until CountFeaturedDeleted or the next fill.
void RemoveListRow(int row);

// Writes one cell of the selected row if it differs.
void UpdateListRow(int column, const QString& text);

// Colours a row (from 0) by status and keeps FeaturedCount, by the status that cboIsNew's tag
// remembers.
void MarkListRow(int row, int status);

// A featured product was deleted from the store.
void CountFeaturedDeleted();

// No rows, as at start.
void ResetListRows();

int ListRowCount();
int SelectedRow(); // from 0; -1 when the list is empty
void SelectRow(int row);
