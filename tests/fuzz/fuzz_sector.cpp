// Flavour files come from whoever prepares a flavour: any bytes give lines, and no byte but the
// last one is lost on the way.
#include "core/flavour.h"
#include "text/ansi.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    QByteArray again = ToAnsi(ReadSectorLines(bytes).join("\r\n"));
    for (char& byte : again) {
        byte = static_cast<char>(~byte);
    }
    if (again != bytes.chopped(bytes.isEmpty() ? 0 : 1)) {
        std::abort();
    }
    return 0;
}
