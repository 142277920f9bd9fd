#include "hostapi/raised.h"
#include "registration_win32.h"
#include "served_calls.h"
#include "server_names_win32.h"
#include "support/component_runtime.h"
#include <ravo/platform/components.h>

#include <string>

#include <gmock/gmock.h>
#include <windows.h>

// Servers outside this program, found by the platform's component runtime in its registry.
namespace ravo {
namespace {

using RavoProfileInfo_TLB::CLASS_RavoProfileInformation;
using RavoProfileInfo_TLB::CLASS_RavoProfileModule;
using RavoProfileInfo_TLB::CoRavoProfileInformation;
using RavoProfileInfo_TLB::CoRavoProfileModule;
using RavoZip_TLB::CLASS_RavoZipper;
using RavoZip_TLB::CoRavoZipper;
using test::Raised;
using test::RaisedBy;

constexpr auto kKeyMissing = static_cast<ResultCode>(0x80040152);
constexpr auto kFileNotFound = static_cast<ResultCode>(0x80070002);
constexpr auto kModuleNotFound = static_cast<ResultCode>(0x8007007E);

constexpr const wchar_t* kLibrary = L"component_server.dll";
constexpr const wchar_t* kProgram = L"component_server_program.exe";

class Servers : public testing::Test {
 protected:
  test::ComponentRuntime runtime_;
  test::Registration registration_;
};

TEST_F(Servers, ThatNobodyRegisteredAreNotFound) {
  const Raised raised = RaisedBy(CoRavoZipper::Create);
  EXPECT_EQ(raised.code, result_code::kClassNotRegistered);
  EXPECT_EQ(raised.text, platform::Components().ComponentErrorText(result_code::kClassNotRegistered));
  EXPECT_FALSE(raised.text.empty());
}

class LibraryServer : public Servers {
 protected:
  LibraryServer() {
    for (const Guid& class_id : {CLASS_RavoZipper, CLASS_RavoProfileInformation, CLASS_RavoProfileModule}) {
      registration_.AddLibraryServer(class_id, test::BesideThisProgram(kLibrary));
    }
  }

  // Returns the references that the library still holds; 0 before it is loaded.
  static int References() {
    const HMODULE library = GetModuleHandleW(kLibrary);
    if (!library) return 0;
    return reinterpret_cast<int (*)()>(
        reinterpret_cast<void*>(GetProcAddress(library, "RavoTestReferences")))();
  }
};

TEST_F(LibraryServer, AnswersCalls) {
  {
    const auto zip = CoRavoZipper::Create();
    const auto information = CoRavoProfileInformation::Create();
    EXPECT_EQ(References(), 2);
    test::ExpectZip(zip);
    test::ExpectProfileInfo(information);
    EXPECT_EQ(References(), 2);
  }
  ASSERT_TRUE(GetModuleHandleW(kLibrary));
  EXPECT_EQ(References(), 0);
}

TEST_F(LibraryServer, ThatRefusesTheInterfaceIsReleased) {
  const Raised raised = RaisedBy(CoRavoProfileModule::Create);
  EXPECT_EQ(raised.code, result_code::kNoInterface);
  EXPECT_EQ(raised.text, u"Interface not supported");
  ASSERT_TRUE(GetModuleHandleW(kLibrary));
  EXPECT_EQ(References(), 0);
}

TEST_F(Servers, WhoseLibraryIsMissingDoNotStart) {
  // Wine starts its surrogate process for the class, which offers it from then on: no other test may need it.
  registration_.AddLibraryServer(CLASS_RavoProfileModule, test::BesideThisProgram(L"missing_server.dll"));
  const Raised raised = RaisedBy(CoRavoProfileModule::Create);
  // Windows reports that the module is missing, Wine that the class or its key is.
  EXPECT_THAT(raised.code, testing::AnyOf(kModuleNotFound, result_code::kClassNotRegistered, kKeyMissing));
  EXPECT_EQ(raised.text, platform::Components().ComponentErrorText(raised.code));
}

class ProgramServer : public Servers {
 protected:
  ~ProgramServer() override { EXPECT_TRUE(IsGone()); }

  void Register(const wchar_t* arguments = L"") {
    const std::wstring command = test::BesideThisProgram(kProgram) + arguments;
    registration_.AddProgramServer(CLASS_RavoZipper, command);
    registration_.AddProgramServer(CLASS_RavoProfileInformation, command);
    registration_.AddInterface({RavoZip_TLB::LIBID_RavoZip, L"RavoZip", RavoZip_TLB::IID_IRavoZip,
                                L"IRavoZip", RavoZip_TLB::IRavoZip::kOwnOperations},
                               test::BesideThisProgram(L"test_zip.tlb"));
    registration_.AddInterface({RavoProfileInfo_TLB::LIBID_RavoProfileInfo, L"RavoProfileInfo",
                                RavoProfileInfo_TLB::IID_IRavoProfileInfo, L"IRavoProfileInfo",
                                RavoProfileInfo_TLB::IRavoProfileInfo::kOwnOperations},
                               test::BesideThisProgram(L"test_profile_info.tlb"));
  }

  static bool Runs() {
    const HANDLE alive = OpenMutexW(SYNCHRONIZE, FALSE, test::kServerAlive);
    if (alive) CloseHandle(alive);
    return alive != nullptr;
  }

  // The server ends with the last reference to its last object.
  static bool IsGone() {
    for (int i = 0; i < 600 && Runs(); ++i) Sleep(50);
    return !Runs();
  }
};

TEST_F(ProgramServer, AnswersCalls) {
  Register();
  {
    const auto zip = CoRavoZipper::Create();
    EXPECT_TRUE(Runs());
    test::ExpectZip(zip);
  }
  EXPECT_TRUE(IsGone());
  const auto information = CoRavoProfileInformation::Create();
  EXPECT_TRUE(Runs());
  test::ExpectProfileInfo(information);
}

TEST_F(ProgramServer, AnswersCallsOnANamedComputer) {
  Register();
  wchar_t name[MAX_COMPUTERNAME_LENGTH + 1] = L"";
  DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
  ASSERT_TRUE(GetComputerNameW(name, &size));
  const auto zip = CoRavoZipper::CreateRemote(std::u16string(name, name + size));
  EXPECT_TRUE(Runs());
  test::ExpectZip(zip);
}

TEST_F(ProgramServer, ThatRefusesTheInterfaceIsReleased) {
  Register(L" --refuse");
  const Raised raised = RaisedBy(CoRavoZipper::Create);
  EXPECT_EQ(raised.code, result_code::kNoInterface);
  EXPECT_EQ(raised.text, u"Interface not supported");
}

TEST_F(ProgramServer, ThatEndsAtOnceDoesNotStart) {
  Register(L" --fail");
  const Raised raised = RaisedBy(CoRavoZipper::Create);
  // Wine reports a missing interface.
  EXPECT_THAT(raised.code, testing::AnyOf(result_code::kServerFailed, result_code::kNoInterface));
  EXPECT_EQ(raised.text, platform::Components().ComponentErrorText(raised.code));
}

TEST_F(Servers, WhoseProgramIsMissingDoNotStart) {
  registration_.AddProgramServer(CLASS_RavoZipper, test::BesideThisProgram(L"missing_server.exe"));
  const Raised raised = RaisedBy(CoRavoZipper::Create);
  // Windows reports that the file is missing or that the server failed to start, Wine as above.
  EXPECT_THAT(raised.code, testing::AnyOf(kFileNotFound, result_code::kServerFailed,
                                          result_code::kClassNotRegistered, kKeyMissing));
  EXPECT_EQ(raised.text, platform::Components().ComponentErrorText(raised.code));
}

TEST_F(Servers, OnAComputerThatCannotBeReachedAreNotFound) {
  const Raised raised = RaisedBy([] { return CoRavoZipper::CreateRemote(u"no-such-computer.invalid"); });
  EXPECT_THAT(raised.code, testing::AnyOf(result_code::kServerUnavailable, result_code::kClassNotRegistered));
  EXPECT_EQ(raised.text, platform::Components().ComponentErrorText(raised.code));
}

bool IsWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

// Wine 8 does not connect to other computers: it ignores the computer's name and searches on this one, so an
// unreachable computer is never reported.
TEST_F(ProgramServer, OnAComputerThatCannotBeReached) {
  Register();
  const auto create = [] { return CoRavoZipper::CreateRemote(u"no-such-computer.invalid"); };
  if (IsWine()) {
    test::ExpectZip(create());
  } else {
    EXPECT_EQ(RaisedBy(create).code, result_code::kServerUnavailable);
  }
}

}  // namespace
}  // namespace ravo
