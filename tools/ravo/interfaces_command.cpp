#include "columns.h"
#include "commands.h"
#include "json_text.h"
#include "text.h"
#include <ravo/RavoInterface.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

struct InterfaceOptions {
  std::string wanted;
  bool json = false;
};

// The search text: an identifier, or a part of a name.
class Wanted {
 public:
  explicit Wanted(const std::string& text) : name_(Lower(text)), identifier_(Identifier(text)) {}

  template <class Row>
  [[nodiscard]] bool Is(const Row& row, std::string_view prefix = "") const {
    if (identifier_) return row.identifier == *identifier_;
    return Lower(std::string(prefix) + std::string(row.name)).find(name_) != std::u16string::npos;
  }

  // A library must match by its whole name: many of its rows contain part of it.
  [[nodiscard]] bool IsLibrary(const ravo::TypeLibraryRow& row) const {
    if (identifier_) return row.identifier == *identifier_;
    const std::u16string name = Lower(row.name);
    return name_ == name || name_ == name + u"_tlb";
  }

 private:
  static std::u16string Lower(std::string_view text) {
    std::u16string lower = ravo::FromUtf8(text);
    for (char16_t& ch : lower) ch = ravo::AsciiLower(ch);
    return lower;
  }

  // Accepts any spelling: with or without braces and dashes, digits of either case, blanks around it.
  static std::optional<ravo::Guid> Identifier(std::string_view text) {
    std::string digits;
    for (const char ch : text) {
      if (ravo::HexDigitValue(static_cast<char16_t>(static_cast<unsigned char>(ch))) >= 0) {
        digits += ch;
      } else if (std::string_view("{}()- ").find(ch) == std::string_view::npos) {
        return std::nullopt;
      }
    }
    if (digits.size() != 32) return std::nullopt;
    for (const std::size_t dash : {8U, 13U, 18U, 23U}) digits.insert(dash, "-");
    return ravo::Guid::FromText(std::string_view(digits));
  }

  std::u16string name_;
  std::optional<ravo::Guid> identifier_;
};

std::string GuidText(const ravo::Guid& identifier) { return ravo::ToUtf8(identifier.ToText()); }

std::vector<std::string> Cells(const ravo::HostInterfaceRow& row) {
  return {"",
          std::string(row.name),
          std::string(ravo::InterfaceKindName(row.kind)),
          std::string(row.base),
          GuidText(row.identifier),
          std::to_string(row.own_operations)};
}

std::vector<std::string> Cells(const ravo::HostClassRow& row) {
  return {"", "Co" + std::string(row.name), "class", std::string(row.returned), GuidText(row.identifier)};
}

Json RowJson(const ravo::HostInterfaceRow& row) {
  return {{"name", row.name},
          {"kind", ravo::InterfaceKindName(row.kind)},
          {"base", row.base},
          {"identifier", GuidText(row.identifier)},
          {"operations", row.own_operations}};
}

Json RowJson(const ravo::HostClassRow& row) {
  return {{"name", row.name}, {"returns", row.returned}, {"identifier", GuidText(row.identifier)}};
}

// A library with its matching rows: all of them if the library itself matches.
struct Branch {
  Columns lines;
  Json interfaces = Json::array();
  Json classes = Json::array();
};

Branch BranchOf(const ravo::TypeLibraryRow& library, const Wanted& wanted) {
  const bool whole = wanted.IsLibrary(library);
  Branch branch;
  for (const ravo::HostInterfaceRow& row : ravo::HostInterfaceRows()) {
    if (row.library != library.name || !(whole || wanted.Is(row))) continue;
    branch.lines.Add(Cells(row));
    branch.interfaces.push_back(RowJson(row));
  }
  for (const ravo::HostClassRow& row : ravo::HostClassRows()) {
    if (row.library != library.name || !(whole || wanted.Is(row, "Co"))) continue;
    branch.lines.Add(Cells(row));
    branch.classes.push_back(RowJson(row));
  }
  return branch;
}

void Run(const InterfaceOptions& options, Outcome& outcome) {
  const Wanted wanted(options.wanted);
  Json libraries = Json::array();
  for (const ravo::TypeLibraryRow& library : ravo::TypeLibraryRows()) {
    Branch branch = BranchOf(library, wanted);
    if (branch.interfaces.empty() && branch.classes.empty()) continue;
    Columns heading;
    heading.Add({std::string(library.name) + "_TLB", GuidText(library.identifier)});
    outcome.out += heading.Text() + branch.lines.Text();
    libraries.push_back({{"library", std::string(library.name) + "_TLB"},
                         {"identifier", GuidText(library.identifier)},
                         {"interfaces", std::move(branch.interfaces)},
                         {"classes", std::move(branch.classes)}});
  }
  if (libraries.empty()) {
    Complain(outcome, Text("there is no interface, class or library '{0}'", {options.wanted}), Answer::No);
  }
  if (options.json) outcome.out = JsonText(libraries);
}

constexpr const char* kInterfacesFooter = ToTranslate(
    "A line of an interface has its name, kind, base, identifier and number of own operations; one of a\n"
    "factory class has its name, the interface that it returns and the identifier of the class.\n"
    "\n"
    "Exit status: 0 found, 1 not found, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo interfaces                 the host's object model, by library\n"
    "  ravo interfaces session         all names that contain this\n"
    "  ravo interfaces '{904F0BB6-AB48-492D-BFF6-09A944EA24C9}'\n"
    "  ravo interfaces 904f0bb6ab48492dbff609a944ea24c9 --json\n");

}  // namespace

void AddInterfacesCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command =
      program.add_subcommand("interfaces", Text("Lists the interfaces of the host's object model"));
  const auto options = std::make_shared<InterfaceOptions>();
  command->add_option(Text("NAME|GUID"), options->wanted,
                      Text("Part of a name, or an identifier in any spelling"));
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kInterfacesFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool
