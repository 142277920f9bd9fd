#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>

namespace ravo::RavoUcetnictviConstants {

/// Class identifier of the accounting module's factory of business objects.
inline constexpr Guid sClassFactoryUcetnictviGUID("{12EC0DEB-D939-4284-9F33-AB6C9D9756AE}");

/// Class identifier of the accounting module's batch of journal records.
inline constexpr Guid sCLASS_RavoBusinessDenikBatch("{AD493EBB-BB67-407E-B296-FA7805DD7FE8}");

/// Class identifier of the accounting module's batch of payables and receivables.
inline constexpr Guid sCLASS_RavoBusinessZavazekPohledavkaBatch("{EC8E5610-7E23-4068-8711-DFD9D5AC9E63}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetUcetnictviTableDescription(std::int32_t id);

}  // namespace ravo::RavoUcetnictviConstants
