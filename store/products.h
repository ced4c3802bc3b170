// Product records between the store and the product form. The form's boxes are the working copy of
// the open record; there is no record object.
//
// A product is open from LoadProduct or AddProduct until SaveProduct parks cursor 6 or another
// product is loaded. While it is open its row lock belongs to this user, and others see it
// read-only. After a save that did not leave the product, ReopenProduct takes the row again at the
// first edit.
#pragma once

#include <QString>

// Publication states, as stored in IsNew and as indices of cboIsNew.
enum ProductStatus { kStatusPublished = 0, kStatusFeatured = 1, kStatusArchived = 2 };

inline constexpr int kFirstProductId = 10001;

// Pictures of a price: in its box and in sums, and where only whole units show.
inline constexpr char16_t kPriceShown[] = u"#,##0.00";
inline constexpr char16_t kPriceListed[] = u"#,##0";

enum class ProductState {
    Held,     // this user has the lock
    ReadOnly, // another user has it: viewable, every save is off
    Gone      // another user has deleted it
};

// Opens the row and fills the form with it. With Gone the form keeps what it had: the caller tells
// the user and takes the row out of the list.
ProductState LoadProduct(const QString& productId);

// Takes the row of the product on screen again if its cursor is parked; otherwise tells how it
// stands.
ProductState ReopenProduct();

// Creates a product with its rows in the store, all of them or none, and shows it in the form,
// already cleared; its number is in txtProductId.
void AddProduct();

// Form to store; nothing while read-only. An internal save leaves LastUpdate alone. Field and text
// rows commit first, the product's row last, then the row lock is given back. After a failure the
// product stays open, and the next SaveCurrentProduct writes it again whatever a comparison says.
void SaveProduct(bool internalOnly);

// Compares form and store and saves what differs. Every screen calls it when it leaves a product.
void SaveCurrentProduct();

// Removes the open product's rows and texts, all of them or none, then its picture files. The list
// row is the caller's. kErrNoCurrentRow or kErrRowLocked when another user was quicker.
void DeleteProduct();

// The featured product with the earliest LastUpdate becomes an ordinary one, stamped with now;
// through cursor 1.
void DemoteOldestFeatured();
