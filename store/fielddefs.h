// Field definitions: the rows of ProductFieldDef dress the slots of the product form once, after
// the store is opened, and set the two counters that all reading and writing of field values hangs
// on.
#pragma once

#include <QString>

extern int
    FirstHiddenField;     // number of public fields: ids from it upwards are internal; 0 at start
extern int MaxFieldDefId; // highest FieldDefId read; 0 at start

// Once per opening of the store, before the first product is shown; through cursor 1.
void LoadFieldDefs();

// Disables the boxes that no field has, where something has enabled all of the form's controls.
void DisableUnusedFields();

// The two parts of a slot's tag: the field's Type and the value of a new product.
QString SlotType(int slot);
QString SlotDefault(int slot);
