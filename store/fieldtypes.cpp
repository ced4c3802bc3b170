#include "store/fieldtypes.h"

#include <array>

namespace {

// Stored in catalogues and not to be changed. The conditions in the header name a letter, too.
struct StoredType {
    char16_t letter;
    FieldType type;
};

constexpr std::array kStoredTypes{
    StoredType{u'B', FieldType::YesNo},
    StoredType{u'O', FieldType::Options},
    StoredType{u'I', FieldType::Internal},
};

} // namespace

FieldType FieldTypeOf(const QString& stored) {
    for (const StoredType& known : kStoredTypes) {
        if (stored == QStringView(&known.letter, 1)) {
            return known.type;
        }
    }
    return FieldType::Text;
}
