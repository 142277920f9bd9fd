#pragma once

#include "amount.h"
#include "money_round.h"
#include "outcome.h"

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// What to answer: the exact result, or that of the suite's modules.
struct RoundRequest {
  RoundRule rule;
  bool as_suite = false;
  std::string notation;  ///< "input", "plain", "cs" or "en"
};

/// The answer for one amount.
struct RoundAnswer {
  std::optional<Amount> amount;
  std::optional<ravo::Currency> rounded;
  std::optional<ravo::Currency> suite;  ///< what the suite's modules compute, wrapped or not
  std::string_view reason;              ///< a code for scripts, or empty
  std::string message;                  ///< the reason for people
  Answer answer = Answer::Yes;
};

/// Returns why a text is no amount, for people.
[[nodiscard]] std::string FaultText(AmountFault fault);

[[nodiscard]] RoundAnswer AnswerRound(std::string_view text, const RoundRequest& request);

/// Returns the rounded amount in the notation asked for. Precondition: there is one.
[[nodiscard]] std::string RoundedText(const RoundAnswer& answer, const RoundRequest& request);

}  // namespace tool
