#include "report_tree.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tool {
namespace {

constexpr std::string_view kSeparator = ": ";
constexpr std::string_view kLineEnd = "\r\n";

Json Entry(std::string_view line) {
  const std::size_t separator = line.find(kSeparator);
  Json entry;
  entry["caption"] = line.substr(0, separator);
  if (separator != std::string_view::npos) entry["value"] = line.substr(separator + kSeparator.size());
  return entry;
}

}  // namespace

Json ReportTree(std::string_view report) {
  Json roots = Json::array();
  // The lists that the next line may be added to, from the outermost. The pointers stay valid because only
  // the last entry of the innermost list grows.
  std::vector<Json*> lists{&roots};
  while (!report.empty()) {
    const std::size_t end = std::min(report.find(kLineEnd), report.size());
    std::string_view line = report.substr(0, end);
    report.remove_prefix(std::min(end + kLineEnd.size(), report.size()));
    const std::size_t depth = std::min(line.find_first_not_of('\t'), line.size());
    line.remove_prefix(depth);
    lists.resize(std::min(depth + 1, lists.size()));
    if (depth >= lists.size() && !lists.back()->empty()) {
      lists.push_back(&(lists.back()->back()["items"] = Json::array()));
    }
    lists.back()->push_back(Entry(line));
  }
  return roots;
}

}  // namespace tool
