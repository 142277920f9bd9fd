#include "columns.h"
#include "commands.h"
#include "json_text.h"
#include "text.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceInfo.h>

#include <memory>
#include <string>
#include <string_view>

namespace tool {
namespace {

struct CaptionsOptions {
  bool plain = false;
  bool json = false;
};

// The headings of the library's groups; JSON has them as they are.
[[maybe_unused]] constexpr const char* kHeadings[] = {
    ToTranslate("Document kind of payables and receivables"),
    ToTranslate("VAT rate level"),
    ToTranslate("Operation kind"),
    ToTranslate("Warehouse posting account"),
    ToTranslate("Payroll surcharge computation"),
    ToTranslate("VAT rounding"),
    ToTranslate("Rounding of totals"),
    ToTranslate("Price basis of an amount"),
    ToTranslate("Discount or surcharge calculation"),
    ToTranslate("Payment method"),
    ToTranslate("Transferred flag"),
    ToTranslate("Messages on automatic posting"),
    ToTranslate("Support report"),
};

// Collects the captions as lines or as JSON.
class Listing {
 public:
  explicit Listing(const CaptionsOptions& options) : options_(options) {}

  void Add(std::string_view group, std::string_view name, const ravo::ResourceString& string) {
    if (group != group_) Begin(group);
    const std::u16string text = options_.plain ? ravo::PlainCaption(string.View()) : string.Text();
    AddLine(name, string.id, text);
    groups_.back()["items"].push_back({{"id", string.id}, {"name", name}, {"text", ravo::ToUtf8(text)}});
  }

  [[nodiscard]] std::string Result() const {
    return options_.json ? JsonText(groups_) : text_ + lines_.Text();
  }

 private:
  void Begin(std::string_view group) {
    text_ += lines_.Text() + (text_.empty() ? "" : "\n") + Text(group) + "\n";
    lines_ = {};
    groups_.push_back({{"group", group}, {"items", Json::array()}});
    group_ = group;
  }

  // A message breaks its lines with a carriage return; a listing has one line per message.
  void AddLine(std::string_view name, int id, const std::u16string& text) {
    lines_.Add(
        {"  " + std::to_string(id), std::string(name), ravo::ToUtf8(ravo::ReplaceAll(text, u"\r", u" / "))});
  }

  CaptionsOptions options_;
  std::string text_;
  Columns lines_;
  Json groups_ = Json::array();
  std::string_view group_;
};

void Run(const CaptionsOptions& options, Outcome& outcome) {
  Listing listing(options);
  for (const ravo::CaptionRow& row : ravo::CaptionRows()) listing.Add(row.group, row.name, row.text);
  for (const auto& [name, caption] : ravo::RavoInterfaceInfo::kReportCaptions) {
    listing.Add("Support report", name, caption);
  }
  outcome.out = listing.Result();
}

constexpr const char* kCaptionsFooter = ToTranslate(
    "Each line has the identifier in the string table, the name in the library and the text; \" / \" is "
    "for\n"
    "the line break of a message. \"&\" marks the keyboard accelerator.\n"
    "\n"
    "Examples:\n"
    "  ravo captions                  every caption and message, by group\n"
    "  ravo captions --plain          as shown in a list, without accelerators\n"
    "  ravo captions --json           for a program, line breaks kept\n");

}  // namespace

void AddCaptionsCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("captions", Text("Lists the captions and messages"));
  const auto options = std::make_shared<CaptionsOptions>();
  command->add_flag("--plain", options->plain, Text("Without accelerator marks"));
  command->add_flag("--json", options->json, Text("Write JSON: {group, items: {id, name, text}}"));
  command->footer(Text(kCaptionsFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool
