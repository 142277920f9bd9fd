#include "round_answer.h"

#include "text.h"

#include <limits>

namespace tool {
namespace {

using Limits = std::numeric_limits<std::int64_t>;

std::string AmountRangeText(std::string_view english) {
  return Text(english, {AmountText({Limits::min()}), AmountText({Limits::max()})});
}

// The code of a fault for scripts.
std::string_view FaultCode(AmountFault fault) {
  switch (fault) {
    case AmountFault::Groups:
      return "groups";
    case AmountFault::Decimals:
      return "decimals";
    case AmountFault::Ambiguous:
      return "ambiguous";
    case AmountFault::Range:
      return "range";
    default:
      return "not-an-amount";
  }
}

RoundAnswer RefusedAnswer(AmountFault fault) {
  return {{}, {}, {}, FaultCode(fault), FaultText(fault), Answer::WrongUsage};
}

std::string LimitText(std::string_view english, const RoundRule& rule, std::string_view suite = {}) {
  return Text(english, {ModeName(rule), std::to_string(rule.decimals),
                        AmountText(SuiteLimit(rule).value_or(ravo::Currency{})), suite});
}

bool Wraps(const RoundRule& rule) { return rule.type != ravo::RavoInterfaceCommon::rtMath; }

// Why the suite's modules have no usable result past their limit.
void TellLimit(RoundAnswer& answer, const RoundRule& rule) {
  answer.reason = Wraps(rule) ? "suite-wraps" : "suite-fails";
  const std::string wrapped = answer.suite ? AmountText(*answer.suite) : Text("no result");
  answer.message =
      Wraps(rule)
          ? LimitText(ToTranslate("the suite's modules give {3}: with --mode {0} --decimals {1} they wrap at "
                                  "32 bits from {2} on"),
                      rule, wrapped)
          : LimitText(ToTranslate("the suite's modules fail with --mode {0} --decimals {1} from {2} on"),
                      rule);
}

void CompareWithSuite(RoundAnswer& answer, const RoundRule& rule) {
  if (IsPastSuiteLimit(answer.amount->value, rule)) return TellLimit(answer, rule);
  if (answer.suite == answer.rounded) return;
  answer.reason = answer.suite ? "suite-differs" : "suite-fails";
  answer.message = answer.suite ? Text("the suite's modules give {0}", {AmountText(*answer.suite)})
                                : Text("the suite's modules cannot round this amount");
}

void AnswerExactly(RoundAnswer& answer, const RoundRule& rule) {
  try {
    answer.rounded = RoundExactly(answer.amount->value, rule);
  } catch (const ravo::OverflowError&) {
    answer.reason = "range";
    answer.message = AmountRangeText(ToTranslate("the result is outside the range of amounts, {0} to {1}"));
    answer.answer = Answer::No;
    return;
  }
  CompareWithSuite(answer, rule);
}

void AnswerAsSuite(RoundAnswer& answer, const RoundRule& rule) {
  AnswerExactly(answer, rule);
  const bool is_usable = answer.suite && !IsPastSuiteLimit(answer.amount->value, rule);
  const std::optional<ravo::Currency> exact = answer.rounded;
  answer.answer = is_usable ? Answer::Yes : Answer::No;
  if (!is_usable) return answer.rounded.reset();
  answer.rounded = answer.suite;
  if (exact == answer.suite) return;
  answer.reason = "suite-differs";
  if (exact) answer.message = Text("the right result is {0}", {AmountText(*exact)});
}

}  // namespace

std::string FaultText(AmountFault fault) {
  switch (fault) {
    case AmountFault::Groups:
      return Text("the digits are not in groups of three");
    case AmountFault::Decimals:
      return Text("an amount has at most four decimals");
    case AmountFault::Ambiguous:
      return Text("three digits after \".\" or \",\" may be thousands or decimals; write 12500 or 12,50");
    case AmountFault::Range:
      return AmountRangeText(ToTranslate("amounts are from {0} to {1}"));
    default:
      return Text("this is no amount; write it as 1234.56 or 1 234,56 Kč");
  }
}

RoundAnswer AnswerRound(std::string_view text, const RoundRequest& request) {
  auto read = ReadAmount(text);
  if (const auto* fault = std::get_if<AmountFault>(&read)) return RefusedAnswer(*fault);
  RoundAnswer answer;
  answer.amount = std::get<Amount>(std::move(read));
  answer.suite = RoundAsSuite(answer.amount->value, request.rule);
  request.as_suite ? AnswerAsSuite(answer, request.rule) : AnswerExactly(answer, request.rule);
  return answer;
}

std::string RoundedText(const RoundAnswer& answer, const RoundRequest& request) {
  return AmountText(*answer.rounded, NotationAsked(answer.amount->notation, request.notation));
}

}  // namespace tool
