#include "isdoc_run.h"

#include "document_file.h"
#include "ordered_blocks.h"
#include "progress.h"
#include "text.h"
#include "xml_work.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <thread>

namespace tool {
namespace {

// One file is too little work to pass between threads.
constexpr std::size_t kFilesOfABlock = 16;
constexpr unsigned kMostWorkers = 16;

using Work = std::function<InvoiceResult(const std::string&, const ravo::isdoc::Document&)>;

// Some files in a row and what they gave.
struct Batch {
  std::span<const InvoiceFile> files;
  std::string out;
  std::vector<std::string> complaints;
  InvoiceCounts counts;
};

void Count(const InvoiceResult& result, InvoiceCounts& counts) {
  ++counts.read;
  if (result.errors > 0)
    ++counts.with_errors;
  else if (result.notes > 0)
    ++counts.with_notes;
}

// In a folder there are other XML files too; what claims to be an invoice is one.
bool IsSkipped(const InvoiceFile& file, const OpenInvoice& invoice) {
  return !file.is_named && file.name.ends_with(".xml") && invoice.version == ravo::isdoc::Version::None;
}

void WorkOn(const InvoiceFile& file, const Work& work, Batch& batch) {
  try {
    const OpenInvoice invoice = ReadInvoice(file.name);
    if (IsSkipped(file, invoice)) {
      ++batch.counts.skipped;
      return;
    }
    if (invoice.version != ravo::isdoc::Version::Known)
      throw FileError(ShownName(file.name) + ": " + WhyNotKnown(invoice));
    const InvoiceResult result = work(file.name, invoice.document);
    batch.out += result.out;
    Count(result, batch.counts);
  } catch (const FileError& error) {
    batch.complaints.emplace_back(error.what());
  }
}

void WorkOnBatch(const Work& work, Batch& batch) {
  batch.out.clear();
  batch.complaints.clear();
  batch.counts = {};
  for (const InvoiceFile& file : batch.files) WorkOn(file, work, batch);
}

void AddCounts(const InvoiceCounts& some, InvoiceCounts& all) {
  all.read += some.read;
  all.with_errors += some.with_errors;
  all.with_notes += some.with_notes;
  all.skipped += some.skipped;
}

unsigned Threads(std::size_t files) {
  const auto batches = static_cast<unsigned>(std::min<std::size_t>(files / kFilesOfABlock + 1, kMostWorkers));
  return std::clamp(std::thread::hardware_concurrency(), 1U, batches);
}

}  // namespace

InvoiceCounts RunOverInvoices(const std::vector<std::string>& names, Outcome& outcome, const Work& work) {
  const InvoiceFiles found = FindInvoices(names);
  for (const std::string& error : found.errors) Complain(outcome, error, Answer::WrongUsage);
  std::span<const InvoiceFile> rest = found.files;
  std::size_t done = 0;
  InvoiceCounts all;
  all.skipped = found.others;
  Progress progress(Text("invoices"), std::ssize(found.files));
  const auto read = [&](Batch& batch) {
    batch.files = rest.first(std::min(rest.size(), kFilesOfABlock));
    rest = rest.subspan(batch.files.size());
    return !batch.files.empty();
  };
  const auto write = [&](Batch& batch) {
    AddOutput(outcome, batch.out);
    for (const std::string& complaint : batch.complaints) Complain(outcome, complaint, Answer::WrongUsage);
    AddCounts(batch.counts, all);
    done += batch.files.size();
    progress.Show(static_cast<std::int64_t>(done));
    return true;
  };
  const unsigned threads = Threads(found.files.size());
  const auto transform = [&] { return [&](Batch& batch, const auto&) { WorkOnBatch(work, batch); }; };
  OrderedBlocks<Batch>(2 * std::size_t{threads}).Run(threads, read, transform, write);
  return all;
}

}  // namespace tool
