#include "support/ReplayErrors.h"

#include "resources/ids.h"

namespace recoveryui::support {
namespace {

constexpr std::int32_t Code(std::uint32_t code) {
    return static_cast<std::int32_t>(code);
}

constexpr ReplayError kErrors[] = {
    {kAnyError, IDS_ERROR_ANY, IDS_DESCRIBE_ANY_ERROR},
    {Code(0x80040202), IDS_ERROR_OBJECT_NOT_FOUND, IDS_DESCRIBE_OBJECT_NOT_FOUND},
    {Code(0x80040203), IDS_REPLAY_OBJECT_NOT_UNIQUE, IDS_DESCRIBE_OBJECT_NOT_UNIQUE},
    {Code(0x80040208), IDS_REPLAY_OBJECT_DISABLED, IDS_DESCRIBE_OBJECT_DISABLED},
    {Code(0x80040209), IDS_REPLAY_ITEM_NOT_FOUND, IDS_DESCRIBE_ITEM_NOT_FOUND},
    {Code(0x8004020A), IDS_REPLAY_ITEM_NOT_UNIQUE, IDS_DESCRIBE_ITEM_NOT_UNIQUE},
    {Code(0x80040205), IDS_REPLAY_OBJECT_NOT_VISIBLE, IDS_DESCRIBE_OBJECT_NOT_VISIBLE},
};

}  // namespace

std::span<const ReplayError> ReplayErrors() {
    return kErrors;
}

const ReplayError* FindReplayError(std::int32_t code) {
    for (const ReplayError& error : kErrors) {
        if (error.code == code) return &error;
    }
    return nullptr;
}

}  // namespace recoveryui::support
