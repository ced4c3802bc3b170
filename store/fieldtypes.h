// The types of a product's fields: what the letter in ProductFieldDef.Type stands for. Whoever
// shows, stores or publishes values by their type switches over FieldType without a default, so
// that the compiler names all these places when a type is added here.
#pragma once

#include <QString>

enum class FieldType {
    Text,
    YesNo,   // value "1" or "0"
    Options, // value is the place in Choices, from 0
    Internal // text that never reaches the web
};

// By the stored letter. Any other than those of YesNo, Options and Internal is a Text: catalogues
// have several letters for those.
FieldType FieldTypeOf(const QString& stored);

// Conditions of statements on ProductFieldDef.
inline constexpr char kInternalFields[] = "Type='I'";
inline constexpr char kPublicFields[] = "Type<>'I'";
