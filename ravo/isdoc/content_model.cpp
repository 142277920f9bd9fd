#include "content_model.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <utility>

namespace ravo::isdoc::schema {
namespace {

constexpr std::uint64_t Bit(std::size_t state) { return std::uint64_t{1} << state; }

// Wildcards are "{namespace}*" and "{##other}*".
bool IsOf(std::string_view wildcard, std::string_view space) {
  const std::string_view wanted = wildcard.substr(1, wildcard.size() - 3);
  return wanted == "##other" ? !space.empty() && space != kSpace : space == wanted;
}

bool Matches(const ElementRow& row, const Element& element) {
  if (row.name[0] == '{') return IsOf(row.name, element.space);
  return row.name == element.name && element.space == kSpace;
}

bool TakeOut(std::vector<std::uint16_t>& elements, std::uint16_t element) {
  const auto found = std::ranges::find(elements, element);
  if (found == elements.end()) return false;
  elements.erase(found);
  return true;
}

}  // namespace

void ContentModel::Begin(const Type& type) {
  type_ = &type;
  state_ = 0;
  stand_ins_ = 0;
  early_.clear();
  late_.clear();
  occurrences_.clear();
}

std::span<const ElementRow> ContentModel::Elements() const {
  return std::span(kElements).subspan(type_->first_element, type_->element_count);
}

const State& ContentModel::StateAt(std::size_t state) const { return kStates[type_->first_state + state]; }

std::span<const Arc> ContentModel::ArcsOf(std::size_t state) const {
  const State& row = StateAt(state);
  return std::span(kArcs).subspan(row.first_arc, row.arc_count);
}

const Arc* ContentModel::Matching(std::size_t state, const Element& child) const {
  for (const Arc& arc : ArcsOf(state)) {
    if (Matches(kElements[type_->first_element + arc.element], child)) return &arc;
  }
  return nullptr;
}

const Arc* ContentModel::ArcTo(std::size_t state, std::uint16_t element) const {
  const auto arcs = ArcsOf(state);
  const auto arc = std::ranges::find(arcs, element, &Arc::element);
  return arc == arcs.end() ? nullptr : &*arc;
}

bool ContentModel::Reaches(std::size_t state, std::uint16_t element) const {
  std::uint64_t seen = Bit(state);
  for (std::uint64_t left = seen; left != 0;) {
    const auto from = static_cast<std::size_t>(std::countr_zero(left));
    left &= left - 1;
    for (const Arc& arc : ArcsOf(from)) {
      if (arc.element == element) return true;
      left |= Bit(arc.state) & ~seen;
      seen |= Bit(arc.state);
    }
  }
  return false;
}

// The elements of which one must come at a state. Every state that is not final has some.
ContentModel::Names ContentModel::Needed(std::size_t state) const {
  Names needed;
  for (const Arc& arc : ArcsOf(state)) {
    if (arc.needed) needed.push_back(arc.element);
  }
  return needed;
}

// The elements of which one must come at a state so that `element` can follow some time.
ContentModel::Names ContentModel::NeededFor(std::size_t state, std::uint16_t element,
                                            std::uint64_t seen) const {
  Names needed;
  for (const bool only_needed : {true, false}) {
    for (const Arc& arc : ArcsOf(state)) {
      const bool fits = (arc.needed || !only_needed) && (seen & Bit(arc.state)) == 0;
      if (fits && Reaches(arc.state, element)) needed.push_back(arc.element);
    }
    if (!needed.empty()) break;
  }
  return needed;
}

// Finds what must come before `element` can, step by step, and the state after that; false if it cannot come
// any more.
bool ContentModel::StepsTo(std::uint16_t element, std::vector<Names>& steps, std::size_t& state) const {
  std::uint64_t seen = 0;
  for (state = state_; ArcTo(state, element) == nullptr; state = ArcTo(state, steps.back().front())->state) {
    seen |= Bit(state);
    Names step = NeededFor(state, element, seen);
    if (step.empty()) return false;
    steps.push_back(std::move(step));
  }
  return true;
}

std::string ContentModel::Listed(const Names& elements) const {
  std::string names;
  for (const std::uint16_t element : elements) {
    names.append(names.empty() ? "" : ", ").append(Elements()[element].name);
  }
  return names;
}

std::string ContentModel::Possible(std::size_t state) const {
  Names elements;
  for (const Arc& arc : ArcsOf(state)) elements.push_back(arc.element);
  return Listed(elements);
}

ContentModel::Answer ContentModel::Take(const Document& document, const Element& parent,
                                        const Element& child) {
  if (const Arc* const arc = Matching(state_, child)) {
    state_ = arc->state;
    return {.element = &Elements()[arc->element], .fault = {}, .expected = {}, .missing = {}};
  }
  const auto row = std::ranges::find(Elements(), child.name, &ElementRow::name);
  const bool known = row != Elements().end();
  const auto element = static_cast<std::uint16_t>(row - Elements().begin());
  if (!known || child.space != kSpace) return Unknown(known ? std::optional(element) : std::nullopt);
  if (occurrences_.empty()) FindOccurrences(document, parent);
  std::vector<Names> steps;
  std::size_t state = 0;
  if (!StepsTo(element, steps, state)) return Passed(document.NumberOf(child), element);
  return Ahead(document, child, element, std::move(steps), state);
}

// A child of an unknown name, or of a known `name` in a wrong namespace.
ContentModel::Answer ContentModel::Unknown(std::optional<std::uint16_t> name) {
  const Arc* const arc = name ? ArcTo(state_, *name) : nullptr;
  Answer answer;
  answer.fault = name ? Rule::NamespaceWrong : Rule::ElementUnexpected;
  answer.expected = name ? std::string(kSpace) : Possible(state_);
  if (arc == nullptr) {
    ++stand_ins_;
  } else {
    state_ = arc->state;
  }
  return answer;
}

// True if the element that a step needs came before its place, or an unknown child took it.
bool ContentModel::Excused(const Names& step) {
  for (const std::uint16_t element : step) {
    if (TakeOut(early_, element)) return true;
  }
  if (stand_ins_ == 0) return false;
  --stand_ins_;
  return true;
}

bool ContentModel::ComesLater(const Names& step, std::uint32_t number) const {
  return std::ranges::any_of(step,
                             [&](std::uint16_t element) { return occurrences_[element].last > number; });
}

// A child before which something is missing. What is missing may come later: then the order is wrong, and the
// next child tells whether this one is early or the other one late.
ContentModel::Answer ContentModel::Ahead(const Document& document, const Element& child,
                                         std::uint16_t element, std::vector<Names> steps, std::size_t state) {
  Answer answer{.element = &Elements()[element], .fault = {}, .expected = {}, .missing = {}};
  const std::uint32_t number = document.NumberOf(child);
  const Element* const next = document.Next(child);
  const bool later = std::ranges::any_of(steps, [&](const Names& step) { return ComesLater(step, number); });
  if (later && next != nullptr && Matching(state_, *next) != nullptr) {
    answer.fault = Rule::OrderWrong;
    answer.expected = Possible(state_);
    early_.push_back(element);
    return answer;
  }
  for (const Names& step : steps) {
    if (Excused(step)) continue;
    if (!ComesLater(step, number)) {
      answer.missing.push_back(Listed(step));
      continue;
    }
    late_.insert(late_.end(), step.begin(), step.end());
    if (!answer.fault) answer.expected = Listed(step);
    answer.fault = Rule::OrderWrong;
  }
  state_ = ArcTo(state, element)->state;
  return answer;
}

// A child whose place is past.
ContentModel::Answer ContentModel::Passed(std::uint32_t number, std::uint16_t element) {
  Answer answer{.element = &Elements()[element], .fault = {}, .expected = {}, .missing = {}};
  if (TakeOut(late_, element)) return answer;
  const bool repeated = occurrences_[element].first < number;
  answer.fault = repeated ? Rule::ElementRepeated : Rule::OrderWrong;
  answer.expected = Possible(state_);
  return answer;
}

void ContentModel::FindOccurrences(const Document& document, const Element& parent) {
  occurrences_.resize(type_->element_count);
  for (const Element* child = document.FirstChild(parent); child != nullptr; child = document.Next(*child)) {
    const auto row = std::ranges::find(Elements(), child->name, &ElementRow::name);
    if (row == Elements().end() || child->space != kSpace) continue;
    Occurrence& occurrence = occurrences_[static_cast<std::size_t>(row - Elements().begin())];
    occurrence.first = std::min(occurrence.first, document.NumberOf(*child));
    occurrence.last = document.NumberOf(*child);
  }
}

std::vector<std::string> ContentModel::End() {
  std::vector<std::string> missing;
  while (!StateAt(state_).final) {
    const Names step = Needed(state_);
    if (!Excused(step)) missing.push_back(Listed(step));
    // Which of several is missing decides what else is.
    if (step.size() > 1) break;
    state_ = ArcTo(state_, step.front())->state;
  }
  return missing;
}

}  // namespace ravo::isdoc::schema
