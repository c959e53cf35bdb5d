// Device and number of the file, by its name alone: opening a database's file a second time, and closing it, would take
// away the locks that the database holds on it.

#include "fileidentity.h"

#include <sys/stat.h>

std::string fileIdentity(const std::string& path)
{
    struct stat status = {};
    if (path.empty() || stat(path.c_str(), &status) != 0) {
        return {};
    }
    return std::to_string(status.st_dev) + ' ' + std::to_string(status.st_ino);
}
