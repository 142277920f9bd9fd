#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace ravo::bench {

/// An export of accounting documents as modules of the suite write it: Windows-1250, CR LF, several
/// attributes, at least `size` bytes.
inline std::string AccountingExport(std::size_t size) {
  static const char* const kNames[] = {
      "N\xE1"
      "kup kancel\xE1\xF8sk\xFD"
      "ch pot\xF8"
      "eb",
      "Pron\xE1jem prostor \x9A"
      "koly",
      "Oprava st\xF8"
      "echy &amp; okap\xF9",
      "\xC8"
      "ist\xED"
      "rna Bo\x9Ekovice",
      "P\xF8"
      "evod mezi \xFA\xE8ty",
      "Z\xE1loha na energie"};
  std::mt19937 random(7);
  const auto below = [&](std::uint32_t bound) { return static_cast<std::uint32_t>(random() % bound); };
  const auto number = [&](std::uint32_t bound) { return std::to_string(below(bound)); };
  std::string text =
      "<?xml version=\"1.0\" encoding=\"windows-1250\" ?>\r\n<UcetniDoklady Firma=\"Brn\xEC"
      "nsk\xE1 "
      "spole\xE8"
      "nost s.r.o.\" Rok=\"2025\">\r\n";
  while (text.size() < size) {
    text += "  <Doklad ID=\"" + number(1000000) + "\" Cislo=\"FV2025" + number(100000) + "\" Datum=\"2025-0" +
            std::to_string(1 + below(9)) + "-1" + number(10) + "\" Mena=\"CZK\">\r\n    <Popis>" +
            kNames[below(6)] + "</Popis>\r\n    <Partner ICO=\"" + number(100000000) + "\" Nazev=\"" +
            kNames[below(6)] + "\"/>\r\n";
    for (std::uint32_t lines = 1 + below(5); lines > 0; --lines) {
      text += "    <Radek Ucet=\"" + number(1000) + "\" Castka=\"" + number(100000) + "." + number(100) +
              "\" DPH=\"21\" Stredisko=\"" + number(50) + "\" Text=\"" + kNames[below(6)] + "\"/>\r\n";
    }
    text += "  </Doklad>\r\n";
  }
  return text + "</UcetniDoklady>\r\n";
}

}  // namespace ravo::bench
