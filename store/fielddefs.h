// Field definitions: the rows of ProductFieldDef dress the slots of the product form once, after
// the store is opened, and set the two counters that all reading and writing of field values hangs
// on.
#pragma once

#include "store/fieldtypes.h"

#include <QString>

extern int
    FirstHiddenField;     // number of public fields: ids from it upwards are internal; 0 at start
extern int MaxFieldDefId; // highest FieldDefId read; 0 at start

// Once per opening of the store, before the first product is shown; through cursor 1.
void LoadFieldDefs();

// Sets FirstHiddenField alone, through cursor 1.
void CountPublicFields();

// Disables the boxes that no field has, where something has enabled all of the form's controls.
void DisableUnusedFields();

// The two parts of a slot's tag: the field's Type as stored and the value of a new product.
FieldType SlotType(int slot);
QString SlotDefault(int slot);
