#include "core/addresses.h"

const MakerAddresses Maker{};
