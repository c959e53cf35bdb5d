// The other side of the shared block, as a process of its own: "blockpeer" publishes each "LATS LONS HEADING" (arc
// seconds, degrees) of its standard input and stays until that ends.
#include "aeozephannavrecord.h"
#include "sharedblock.h"

#include <cstdlib>
#include <iostream>
#include <string>

int main()
{
    SharedBlock block;
    void* const view = block.attach() ? block.map() : nullptr;
    if (view == nullptr)
        return EXIT_FAILURE;
    auto* const record = static_cast<volatile AeoZephanNavRecord*>(view);
    std::string lat, lon, heading;
    while (std::cin >> lat >> lon >> heading) {
        // strtod takes "nan" and "inf" too.
        record->latS = std::strtod(lat.c_str(), nullptr);
        record->lonS = std::strtod(lon.c_str(), nullptr);
        record->heading = std::strtod(heading.c_str(), nullptr);
        std::cout << "published" << std::endl;
    }
    return EXIT_SUCCESS;
}
