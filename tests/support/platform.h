#ifndef KELPOWER_TESTS_SUPPORT_PLATFORM_H
#define KELPOWER_TESTS_SUPPORT_PLATFORM_H

#include <filesystem>
#include <string>

/// Errors that were achieved differ between platforms in the last digits, through the mathematical functions of the C
/// library. A platform with a name may have a file of its own for them: achieved.csv is then achieved-arm64.csv.
inline std::string FileOfPlatform(const std::filesystem::path& path, const std::string& platform = KELPOWER_PLATFORM) {
  if (platform.empty()) return path.string();
  const std::string name = path.stem().string() + "-" + platform + path.extension().string();
  return (path.parent_path() / name).string();
}

/// The platform's own file where there is one, else the common one.
inline std::string FileToCompareWith(const std::filesystem::path& path,
                                     const std::string& platform = KELPOWER_PLATFORM) {
  const std::string own = FileOfPlatform(path, platform);
  return std::filesystem::exists(own) ? own : path.string();
}

#endif
