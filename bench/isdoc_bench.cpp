// An invoice of seven kilobytes: its structure, beside the limit that the check is held to, 50 us, and beside
// libxml2 with the published schemas, if RAVO_ISDOC_SCHEMAS names their folder. Both have the document as a
// tree already.

#include "ratio.h"
#include <ravo/isdoc/document.h>
#include <ravo/isdoc/structure.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

namespace {

std::string InvoiceText() {
  std::ifstream in(RAVO_SAMPLES "/isdoc/foreign-currency.isdoc", std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void CheckOurs(benchmark::State& state) {
  ravo::isdoc::ReadingError error;
  const auto document = ravo::isdoc::Document::Read(InvoiceText(), error);
  if (!document) return state.SkipWithError(error.message.c_str());
  for (auto _ : state) {
    ravo::isdoc::Findings findings;
    ravo::isdoc::CheckStructure(*document, findings);
    if (!findings.empty()) state.SkipWithError("the sample is not valid");
  }
}

// The time that the check may take.
void Limit(benchmark::State& state) {
  for (auto _ : state) benchmark::ClobberMemory();
  state.counters["figure"] = 50'000;
}

template <auto Free>
struct Freed {
  template <class Thing>
  void operator()(Thing* thing) const {
    Free(thing);
  }
};

using Schema = std::unique_ptr<xmlSchema, Freed<xmlSchemaFree>>;

Schema PublishedSchema(const std::string& folder) {
  const std::unique_ptr<xmlSchemaParserCtxt, Freed<xmlSchemaFreeParserCtxt>> parser(
      xmlSchemaNewParserCtxt((folder + "/isdoc-invoice-6.0.2.xsd").c_str()));
  return Schema(xmlSchemaParse(parser.get()));
}

void CheckTheirs(benchmark::State& state, const std::string& folder) {
  const std::string text = InvoiceText();
  const std::unique_ptr<xmlDoc, Freed<xmlFreeDoc>> document(
      xmlReadMemory(text.data(), static_cast<int>(text.size()), "invoice", nullptr, XML_PARSE_NONET));
  const Schema schema = PublishedSchema(folder);
  if (!schema) return state.SkipWithError("no schema");
  for (auto _ : state) {
    const std::unique_ptr<xmlSchemaValidCtxt, Freed<xmlSchemaFreeValidCtxt>> check(
        xmlSchemaNewValidCtxt(schema.get()));
    if (xmlSchemaValidateDoc(check.get(), document.get()) != 0)
      state.SkipWithError("the sample is not valid");
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::RegisterBenchmark("structure_of_invoice/ravo", CheckOurs);
  benchmark::RegisterBenchmark("structure_of_invoice/limit", Limit);
  const char* const folder = std::getenv("RAVO_ISDOC_SCHEMAS");
  if (folder != nullptr) {
    benchmark::RegisterBenchmark("structure_of_invoice/libxml2", CheckTheirs, std::string(folder));
  }
  return ravo::bench::RunWithRatios(argc, argv);
}
