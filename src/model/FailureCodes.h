#pragma once

#include <cstdint>

namespace recoveryui::model {

// The failure codes that decisions look at, as 32-bit HRESULT values; negative is failure.
inline constexpr std::int32_t kOk = 0;
inline constexpr std::int32_t kFileNotFound = static_cast<std::int32_t>(0x80030002u);  // STG_E_FILENOTFOUND
inline constexpr std::int32_t kPathNotFound = static_cast<std::int32_t>(0x80030003u);  // STG_E_PATHNOTFOUND
inline constexpr std::int32_t kAccessDenied = static_cast<std::int32_t>(0x80030005u);  // STG_E_ACCESSDENIED
inline constexpr std::int32_t kShareViolation =
    static_cast<std::int32_t>(0x80030020u);  // STG_E_SHAREVIOLATION
inline constexpr std::int32_t kLockViolation = static_cast<std::int32_t>(0x80030021u);  // STG_E_LOCKVIOLATION
inline constexpr std::int32_t kMediumFull = static_cast<std::int32_t>(0x80030070u);     // STG_E_MEDIUMFULL
inline constexpr std::int32_t kDiskFull = static_cast<std::int32_t>(0x80070070u);       // ERROR_DISK_FULL
inline constexpr std::int32_t kHandleDiskFull =
    static_cast<std::int32_t>(0x80070027u);  // ERROR_HANDLE_DISK_FULL

}  // namespace recoveryui::model
