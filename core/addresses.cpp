#include "core/addresses.h"

MakerAddresses Maker;

QString UpdateAddress(const QString& file) {
    if (Maker.updateService.isEmpty()) {
        return {};
    }
    const QString scheme = Maker.updateService.contains("://") ? "" : "http://";
    return scheme + Maker.updateService + "/updates/" + file;
}
