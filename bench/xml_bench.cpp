// Documents like accounting exports, 1 MB and 50 MB, from bytes in Windows-1250 to a tree and back, beside
// pugixml, libxml2 and expat. "warm" rows keep the heap's pages between runs; "fresh" rows give them back to
// the system before each run, as a program meets them that loads one document.

#include "ratio.h"
#include "xml_document.h"
#include "xml_memory.h"
#include "xml_rivals.h"
#include <ravo/ECXMLParser.h>
#include <ravo/ECXMLTokenizer.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

using namespace ravo;
using namespace ravo::bench;
using ECXMLParser::TECXMLParser;

// A stream over bytes that it does not own.
class TextStream final : public ByteStream {
 public:
  explicit TextStream(const std::string& text) : text_(text) {}
  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    const auto at = static_cast<std::size_t>(position_);
    const std::size_t count = std::min(to.size(), text_.size() - std::min(text_.size(), at));
    std::copy_n(reinterpret_cast<const std::byte*>(text_.data()) + at, count, to.data());
    position_ += static_cast<std::int64_t>(count);
    return count;
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override { position_ = position; }
  [[nodiscard]] std::int64_t Size() const override { return static_cast<std::int64_t>(text_.size()); }

 private:
  const std::string& text_;
  std::int64_t position_ = 0;
};

// A stream that appends to a string, like the rivals' writers.
class OutStream final : public ByteStream {
 public:
  std::string text;
  [[nodiscard]] std::size_t Read(std::span<std::byte>) override { return 0; }
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override {
    text.append(reinterpret_cast<const char*>(from.data()), from.size());
    return from.size();
  }
  [[nodiscard]] std::int64_t Position() const override { return static_cast<std::int64_t>(text.size()); }
  void SetPosition(std::int64_t) override {}
  [[nodiscard]] std::int64_t Size() const override { return Position(); }
};

void Load(TECXMLParser& parser, const std::string& text) {
  TextStream stream(text);
  parser.LoadFromStream(stream);
}

std::size_t Save(TECXMLParser& parser) {
  OutStream out;
  parser.SaveToStream(out, false);
  return out.text.size();
}

std::size_t LoadAndSave(const std::string& text) {
  TECXMLParser parser;
  Load(parser, text);
  return Save(parser);
}

std::size_t LoadAndFree(const std::string& text) {
  TECXMLParser parser;
  Load(parser, text);
  return static_cast<std::size_t>(parser.Root()->SubItemCount());
}

std::size_t Tokens(const std::string& text) {
  TextStream stream(text);
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  std::size_t count = 0;
  for (; tokenizer.Token() != ECXMLTokenizer::xtEndOfInput; tokenizer.NextToken()) ++count;
  return count;
}

std::size_t TokenStrings(const std::string& text) {
  TextStream stream(text);
  ECXMLTokenizer::TXMLTokenizer tokenizer(stream);
  std::size_t count = 0;
  for (; tokenizer.Token() != ECXMLTokenizer::xtEndOfInput; tokenizer.NextToken()) {
    count += tokenizer.TokenString().size();
  }
  return count;
}

struct Size {
  const char* name;
  std::string text;
  std::string utf8;
};

using Job = std::function<std::size_t()>;

void Register(const std::string& name, bool fresh, const Job& job) {
  benchmark::RegisterBenchmark(name.c_str(), [fresh, job](benchmark::State& state) {
    if (fresh) {
      mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    } else {
      // Blocks up to the largest size that malloc allows are never returned to the system.
      mallopt(M_MMAP_THRESHOLD, 1 << 25);
      mallopt(M_TRIM_THRESHOLD, INT32_MAX);
      benchmark::DoNotOptimize(job());
    }
    for (auto _ : state) {
      if (fresh) {
        state.PauseTiming();
        malloc_trim(0);
        state.ResumeTiming();
      }
      benchmark::DoNotOptimize(job());
    }
  });
}

void RegisterSize(const Size& size) {
  const std::string& text = size.text;
  for (const bool fresh : {false, true}) {
    const std::string suffix = std::string(" ") + size.name + (fresh ? " fresh/" : " warm/");
    Register("load+save" + suffix + "ravo", fresh, [&] { return LoadAndSave(text); });
    Register("load+save" + suffix + "iconv+pugixml", fresh, [&] { return PugixmlLoadAndSave(text); });
    Register("load+save" + suffix + "libxml2", fresh, [&] { return Libxml2LoadAndSave(text); });
    Register("load+free" + suffix + "ravo", fresh, [&] { return LoadAndFree(text); });
    Register("tokens" + suffix + "ravo", fresh, [&] { return Tokens(text); });
    Register("tokens" + suffix + "expat", fresh, [&] { return ExpatTokens(size.utf8); });
    Register("token strings" + suffix + "ravo", fresh, [&] { return TokenStrings(text); });
    Register("token strings" + suffix + "expat", fresh, [&] { return ExpatTokens(size.utf8); });
#ifdef RAVO_HAS_WIDE_PUGIXML
    Register("load+free" + suffix + "pugixml-wide", fresh, [&] { return WidePugixmlLoad(size.utf8); });
    static std::map<const Size*, TECXMLParser> ours;
    static std::map<const Size*, void*> theirs;
    TECXMLParser& parser = ours[&size];
    if (parser.Root()->SubItemCount() == 0) {
      Load(parser, text);
      theirs[&size] = WidePugixmlTree(size.utf8);
    }
    const void* tree = theirs[&size];
    Register("save" + suffix + "ravo", fresh, [&parser] { return Save(parser); });
    Register("save" + suffix + "pugixml-wide", fresh, [tree] { return WidePugixmlSave(tree); });
#endif
  }
}

std::size_t Elements(ECXMLParser::TXMLItem& item) {
  std::size_t count = 1;
  for (std::int32_t i = 0; i < item.SubItemCount(); ++i) count += Elements(*item.SubItems(i));
  return count;
}

std::size_t Peak(const std::string& text) {
  TECXMLParser parser;
  StartCountingMemory();
  Load(parser, text);
  return StopCountingMemory();
}

// The peak memory while the document is loaded, per element.
void RegisterPeak(const std::string& name, const Size& size, std::size_t (*peak)(const std::string&),
                  const std::string& text) {
  const auto run = [&size, &text, peak](benchmark::State& state) {
    TECXMLParser parser;
    Load(parser, size.text);
    const auto elements = static_cast<double>(Elements(*parser.Root()));
    for (auto _ : state) state.counters["figure"] = static_cast<double>(peak(text)) / elements;
  };
  benchmark::RegisterBenchmark(name.c_str(), run)->Iterations(1);
}

void RegisterPeaks(const Size& size) {
  const std::string job = "peak bytes per element " + std::string(size.name) + "/";
  RegisterPeak(job + "ravo", size, Peak, size.text);
  RegisterPeak(job + "pugixml", size, PugixmlPeak, size.utf8);
}

}  // namespace

int main(int argc, char** argv) {
  static const Size sizes[] = {
      {"1 MB", AccountingExport(1'000'000), Converted(AccountingExport(1'000'000), "CP1250", "UTF-8")},
      {"50 MB", AccountingExport(50'000'000), Converted(AccountingExport(50'000'000), "CP1250", "UTF-8")},
  };
  for (const Size& size : sizes) {
    RegisterSize(size);
    RegisterPeaks(size);
  }
  return RunWithRatios(argc, argv);
}
