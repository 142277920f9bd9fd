#include <ravo/RavoBaseConstants.h>
#include <ravo/RavoBoxConstants.h>
#include <ravo/RavoDCFConstants.h>
#include <ravo/RavoKancelarConstants.h>
#include <ravo/RavoMajetekConstants.h>
#include <ravo/RavoMzdaConstants.h>
#include <ravo/RavoProfileConstants.h>
#include <ravo/RavoRSSConstants.h>
#include <ravo/RavoSkladConstants.h>
#include <ravo/RavoUcetnictviConstants.h>

#include <array>
#include <set>

#include <gtest/gtest.h>

namespace ravo {
namespace {

struct Row {
  Guid identifier;
  std::u16string_view text;
};

constexpr Row kRows[] = {
    {RavoProfileConstants::sClassFactoryProfileGUID, u"{9931EEB7-9D42-492A-BA73-7DC2D8DDF926}"},
    {RavoKancelarConstants::sClassFactoryKancelarGUID, u"{794538E4-1563-410E-9161-5DB3C650200B}"},
    {RavoUcetnictviConstants::sClassFactoryUcetnictviGUID, u"{12EC0DEB-D939-4284-9F33-AB6C9D9756AE}"},
    {RavoUcetnictviConstants::sCLASS_RavoBusinessDenikBatch, u"{AD493EBB-BB67-407E-B296-FA7805DD7FE8}"},
    {RavoUcetnictviConstants::sCLASS_RavoBusinessZavazekPohledavkaBatch,
     u"{EC8E5610-7E23-4068-8711-DFD9D5AC9E63}"},
    {RavoMajetekConstants::sClassFactoryMajetekGUID, u"{121787A8-3765-414A-977F-8B68D4890BF6}"},
    {RavoRSSConstants::sClassFactoryRSSGUID, u"{A71DA20E-DF27-4C69-AE69-FD575EF19341}"},
    {RavoDCFConstants::sClassFactoryDCFGUID, u"{ADB2B48C-94D7-47E9-9F9B-105D162C8A04}"},
    {RavoBaseConstants::sClassFactoryBaseGUID, u"{DFF3DC22-6B28-4056-B9F5-7263A892C698}"},
    {RavoMzdaConstants::sClassFactoryMzdaGUID, u"{6618E68F-4B88-438C-88B4-C94D3DA7D666}"},
    {RavoSkladConstants::sClassFactorySkladGUID, u"{DE1A7008-ED38-4374-AEFB-511059973D85}"},
    {RavoBoxConstants::sClassFactoryBoxGUID, u"{E7B4E0F7-A185-46FC-9A0F-47F73AD18B79}"},
};

TEST(FactoryIdentifiers, HaveTheirTexts) {
  for (const Row& row : kRows) EXPECT_EQ(row.identifier.ToText(), row.text);
}

TEST(FactoryIdentifiers, AreAllDifferent) {
  std::set<Guid> identifiers;
  for (const Row& row : kRows) identifiers.insert(row.identifier);
  EXPECT_EQ(identifiers.size(), 12U);
}

TEST(FactoryIdentifiers, AreBytesInMemoryOrder) {
  constexpr std::array<std::uint8_t, 16> bytes{0xB7, 0xEE, 0x31, 0x99, 0x42, 0x9D, 0x2A, 0x49,
                                               0xBA, 0x73, 0x7D, 0xC2, 0xD8, 0xDD, 0xF9, 0x26};
  EXPECT_EQ(RavoProfileConstants::sClassFactoryProfileGUID.bytes, bytes);
}

}  // namespace
}  // namespace ravo
