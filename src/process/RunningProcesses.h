// The processes that run now.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace recoveryui::process {

// File names of the executables, one per process: two instances of one program are two entries. Empty when
// the system does not list them; nothing when it does not even tell its version.
std::optional<std::vector<std::wstring>> EnumerateProcesses();

enum class ProcessSource { Snapshot, NativeQuery };

// Which way lists the processes of a system, by its platform id and major version.
constexpr ProcessSource SourceFor(std::uint32_t platformId, std::uint32_t majorVersion) {
    constexpr std::uint32_t kNtFamily = 2;
    return platformId == kNtFamily && majorVersion < 5 ? ProcessSource::NativeQuery : ProcessSource::Snapshot;
}

std::vector<std::wstring> ProcessesFrom(ProcessSource source);

}  // namespace recoveryui::process
