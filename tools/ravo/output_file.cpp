#include "output_file.h"

#include "console.h"
#include "draft_file.h"
#include "system_reason.h"
#include "text.h"
#include "text_file.h"

#include <atomic>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace tool {
namespace {

// Set once, by the command line.
std::atomic<bool> replace_read_only{false};

constexpr std::size_t kWriteAtOnce = std::size_t{1} << 16;

std::string TextOfRefusal(Refused why) {
  switch (why) {
    case Refused::IsFolder:
      return Text("is a folder");
    case Refused::IsReadOnly:
      return Text("is read-only; --force replaces it");
    case Refused::IsDeadLink:
      return Text("is a link to a file that does not exist");
    default:
      return Text("is in use by another program");
  }
}

// Runs `work`; returns an empty text, or why it failed.
template <class Work>
std::string FailureOf(Work work) {
  try {
    work();
    return {};
  } catch (const RefusedTarget& refused) {
    return TextOfRefusal(refused.why);
  } catch (const std::system_error& error) {
    if (error.code() == std::errc::no_such_file_or_directory)
      return Text("cannot be written: its folder does not exist");
    return Text("cannot be written: {0}", {SystemReason(error.code())});
  }
}

}  // namespace

void ReplaceReadOnlyFiles(bool replace) { replace_read_only = replace; }

WholeFile::WholeFile(const std::string& name) {
  if (name == kInputName) return;
  failure_ = name.empty()
                 ? Text("the name of the output file is empty")
                 : FailureOf([&] { draft_ = std::make_unique<DraftFile>(PathOf(name), replace_read_only); });
}

WholeFile::~WholeFile() = default;

// The first failure counts.
void WholeFile::Fail(const std::string& reason) {
  if (failure_.empty()) failure_ = reason;
}

void WholeFile::Flush() {
  const std::string bytes = std::exchange(pending_, {});
  if (!failure_.empty()) return;
  if (draft_) return Fail(FailureOf([&] { draft_->Write(bytes); }));
  if (!tool::Write(Channel::Out, bytes)) Fail(Text("cannot be written"));
}

bool WholeFile::Write(std::string_view bytes) {
  pending_ += bytes;
  if (pending_.size() >= kWriteAtOnce) Flush();
  return failure_.empty();
}

std::string WholeFile::Finish() {
  Flush();
  if (failure_.empty() && draft_) Fail(FailureOf([&] { draft_->Publish(); }));
  return failure_;
}

std::string WriteTextFile(const std::string& name, std::string_view bytes) {
  WholeFile file(name);
  file.Write(bytes);
  return file.Finish();
}

}  // namespace tool
