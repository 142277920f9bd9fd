// Cost as the work grows: the same job for 1, 10 and 100 times the work, on a heap without reused pages. If
// the cost of one item is constant, the job is linear. Blocks of many megabytes use new pages of the system
// each time, which adds to the last column; a quadratic job would have 10 and 100 there.
#include "ratio.h"
#include "xml_document.h"
#include <ravo/DIUnicode.h>
#include <ravo/DIUtils.h>
#include <ravo/ECXMLParser.h>
#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/runtime/byte_stream.h>
#include <ravo/utils/crc32_kernels.h>

#include <functional>
#include <memory>
#include <span>
#include <string>

#include <malloc.h>

namespace {

using namespace ravo;

constexpr std::size_t kTimes[] = {1, 10, 100};

/// A job over objects that were created before it, and the number of items it works on.
struct Work {
  std::function<void()> run;
  std::size_t items;
};

void Register(const std::string& job, std::size_t times, const std::function<Work(std::size_t)>& make) {
  const std::string name = job + "/" + std::to_string(times);
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    const Work work = make(times);
    for (auto _ : state) {
      state.PauseTiming();
      malloc_trim(0);
      state.ResumeTiming();
      work.run();
      benchmark::ClobberMemory();
    }
    state.counters["items"] = static_cast<double>(work.items);
  });
}

std::span<const std::byte> BytesOf(const std::string& text) { return std::as_bytes(std::span(text)); }

using Parser = ECXMLParser::TECXMLParser;

std::shared_ptr<MemoryStream> Document(std::size_t times) {
  return std::make_shared<MemoryStream>(BytesOf(bench::AccountingExport(500'000 * times)));
}

void Load(Parser& parser, MemoryStream& stream) {
  stream.SetPosition(0);
  parser.LoadFromStream(stream);
}

Work XmlLoad(std::size_t times) {
  const auto stream = Document(times);
  return {[stream] {
            Parser parser;
            Load(parser, *stream);
          },
          static_cast<std::size_t>(stream->Size())};
}

Work XmlSave(std::size_t times) {
  const auto stream = Document(times);
  const auto parser = std::make_shared<Parser>();
  Load(*parser, *stream);
  return {[parser] {
            MemoryStream target;
            parser->SaveToStream(target, false);
          },
          static_cast<std::size_t>(stream->Size())};
}

// Converts the bytes of a document in Windows-1250 with reader and writer.
Work Convert(std::size_t times) {
  const auto source = Document(times);
  return {[source] {
            using namespace DIUnicode;
            source->SetPosition(0);
            MemoryStream target;
            TDIUnicodeWriter writer;
            writer.SetWriteMethods(Write_UTF_8);
            writer.SetDataStream(&target);
            writer.WriteStream(source.get(), Read_Windows_1250);
            writer.FlushDataBuffer();
          },
          static_cast<std::size_t>(source->Size())};
}

// One hit in seventeen characters.
Work Replace(std::size_t times) {
  std::u16string text;
  while (text.size() < 100'000 * times) text += u"Účet 221, 311/602";
  return {[text] { benchmark::DoNotOptimize(DIUtils::StrReplaceW(text, u"221", u"zzzz")); }, text.size()};
}

Work Append(std::size_t times) {
  const std::size_t appends = 100'000 * times;
  return {[appends] {
            DIUtils::TWideStrBuf buffer;
            for (std::size_t i = 0; i < appends; ++i) buffer.AddStr(u"Účet 221");
            benchmark::DoNotOptimize(buffer);
          },
          appends};
}

template <class Kernels>
std::string LastThatRuns(const Kernels& kernels) {
  std::string name;
  for (const auto& kernel : kernels) {
    if (kernel.runs_here()) name = kernel.name;
  }
  return name;
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::AddCustomContext("kernels", "CRC-32 " + LastThatRuns(utils::Crc32Kernels()) + ", text " +
                                             LastThatRuns(codec::KernelSets()));
  for (const std::size_t times : kTimes) {
    Register("XML: load and free, a byte", times, XmlLoad);
    Register("XML: save, a byte", times, XmlSave);
    Register("convert Windows-1250 to UTF-8, a byte", times, Convert);
    Register("StrReplaceW, a character", times, Replace);
    Register("TWideStrBuf, an append", times, Append);
  }
  return bench::RunWithRatios(argc, argv);
}
