#include "console.h"
#include "document_file.h"
#include "json_text.h"
#include "text.h"
#include "xml_tree_text.h"
#include "xml_work.h"
#include <ravo/RavoInterface.h>
#include <ravo/document/edit.h>
#include <ravo/document/suite.h>

#include <map>
#include <utility>

namespace tool {
namespace {

using namespace ravo::document;

using ravo::ECXMLParser::TECXMLParser;

DocumentReading ReadSuite(const XmlOptions& options) {
  TECXMLParser parser;
  try {
    LoadAsSuite(ReadDocumentBytes(options.file), parser);
  } catch (const ravo::Error& error) {
    throw FileError(ShownName(options.file) + ": " + error.what());
  }
  if (parser.Root()->Name().empty() && parser.Root()->SubItemCount() == 0) {
    throw FileError(ShownName(options.file) + ": " + Text("the suite loads nothing of this document"));
  }
  return ReadBySuite(*parser.Root());
}

// Forms the path of each element of a reading, in their order.
class Paths {
 public:
  const std::string& Next(const ReadElement& element) {
    open_.resize(element.depth + 2);
    Level& level = open_[element.depth + 1];
    const std::size_t number = ++open_[element.depth].names[element.name];
    level.path = open_[element.depth].path + "/" + element.name + "[" + std::to_string(number) + "]";
    level.names.clear();
    return level.path;
  }

 private:
  struct Level {
    std::string path;
    std::map<std::string, std::size_t> names;
  };
  std::vector<Level> open_;
};

void AddPlace(const TextPlace& place, Json& line) {
  line["line"] = place.line;
  line["column"] = place.column;
}

Json AttributesJson(const ReadElement& element) {
  Json attributes = Json::array();
  for (const auto& [name, value] : element.attributes)
    attributes.push_back({{"name", name}, {"value", value}});
  return attributes;
}

// The suite does not know places: `text` is null for its readings.
void AddReadingJson(const DocumentReading& reading, const std::string* text, Outcome& outcome) {
  Paths paths;
  PlaceFinder places(text != nullptr ? *text : std::string_view());
  for (const ReadElement& element : reading) {
    Json line;
    line["path"] = paths.Next(element);
    if (text != nullptr) AddPlace(places.Find(element.at), line);
    line["name"] = element.name;
    line["attributes"] = AttributesJson(element);
    line["text"] = element.text;
    AddOutput(outcome, JsonLine(line));
  }
}

void ShowReading(const XmlOptions& options, const DocumentReading& reading, const std::string* text,
                 Outcome& outcome) {
  if (options.json) return AddReadingJson(reading, text, outcome);
  const bool colours = options.colour || ShowsColours(Channel::Out);
  outcome.coloured = colours;
  for (const ReadElement& element : reading) AddOutput(outcome, XmlElementLine(element, colours));
}

std::string SuiteValue(const DocumentReading& reading, const DocumentPath& path) {
  const auto element = FindInReading(reading, path);
  if (!element) throw PathError(Message::NothingThere, {path.text});
  if (path.attribute.empty()) return reading[*element].text;
  const auto attribute = FindAttribute(reading[*element], path.attribute);
  if (!attribute) throw PathError(Message::NothingThere, {path.text});
  return reading[*element].attributes[*attribute].second;
}

// The suite's texts have CR LF at line ends.
std::string WithPlainBreaks(std::string text) {
  std::erase(text, '\r');
  return text;
}

void ShowValue(const XmlOptions& options, const std::string& value, const TextPlace* place,
               Outcome& outcome) {
  if (!options.json) {
    const std::string shown = options.suite ? WithPlainBreaks(value) : value;
    outcome.out = IsTerminal(Channel::Out) ? OnLines(shown) + "\n" : shown + "\n";
    return;
  }
  Json line;
  line["path"] = options.path;
  if (place != nullptr) AddPlace(*place, line);
  line["value"] = value;
  outcome.out = JsonLine(line);
}

}  // namespace

void ShowXml(const XmlOptions& options, Outcome& outcome) {
  if (options.suite) return ShowReading(options, ReadSuite(options), nullptr, outcome);
  const FileDocument open(options.file);
  ShowReading(options, ReadByScanner(open.Document()), &open.Text().utf8, outcome);
}

void GetXml(const XmlOptions& options, Outcome& outcome) {
  const DocumentPath path = ParsePath(options.path);
  if (options.suite) return ShowValue(options, SuiteValue(ReadSuite(options), path), nullptr, outcome);
  const FileDocument open(options.file);
  const DocumentPlace place = PathFinder(open.Document()).FindWhole(path);
  const std::string value = ValueAt(open.Document(), place, options.edit.is_raw);
  const TextPlace where = PlaceFinder(open.Text().utf8).Find(PositionAt(open.Document(), place));
  ShowValue(options, value, &where, outcome);
}

}  // namespace tool
