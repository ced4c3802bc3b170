// The product list: filling, sorting, filtering and refreshing it, and keeping it in step with the
// editor. The selected row is the product in the editor at all times. Owns the list's statement,
// its order and SelectedRef.
#pragma once

#include "editor/listrows.h"

#include <QString>

// The list's statement with filter and order; empty before the first fill.
extern QString CurrentListSQL;

extern QString SelectedRef; // reference of the row selected before a refresh
extern int SortColumn;      // a ListColumn; kColumnRef at start
extern bool SortDescending; // false at start

inline constexpr int kListSelector = 2; // the list's number for SortProductList

// Brings cursor 2 up to date: the base statement at first, later the remembered order. Returns
// SelectedRef.
QString BuildListQuery();

// Orders cursor 2 by a column; nothing unless `selector` is kListSelector.
void SortProductList(int selector, int column, bool ascending);

// Gives cursor 2 a condition, or none; the order stays.
void FilterProductList(const QString& filter);

// The list shows descriptions in the default language: its statement gets the code of another one,
// and the list is filled again.
void ChangeListLanguage(const QString& before, const QString& after);

// Forgets search and order, so that the next fill begins with the base statement: for another
// catalogue in place of this one.
void RestartProductList();

// List and order as at start, without filling anything.
void ResetProductList();

// Saves the open product and notes selection and sort, before the list is filled anew or the store
// is closed.
void ReleaseCurrent();

// Fills the list. `position` is the row (from 1) to select, and comes back as the row of
// `productId` where that is listed; with `keepEditor` the editor stays as it is.
void RefreshProductList(int& position, QString productId, bool keepEditor);

// The same without a wish: first row, editor filled.
void RefreshProductList();

// Takes out the selected row and moves on to the next product.
void RemoveFromList();

// Tells the user that the product in the editor was deleted by somebody else, and takes its row out
// of the list.
void TellProductGone();

// Connects the list's clicks and keys and the refresh timer.
void ConnectProductList();

// Fills the editor from the selected row; a product that another user has deleted is told and taken
// out of the list.
void LoadSelectedProduct();
