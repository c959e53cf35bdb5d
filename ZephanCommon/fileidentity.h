#pragma once

#include <string>

/// Tells a file from any other that comes to stand under its name; the path is in the platform's encoding. Empty
/// without a file, and where the platform keeps an open file in its place. Without Qt, one file for each platform.
std::string fileIdentity(const std::string& path);
