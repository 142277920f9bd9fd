#include "reading.h"

namespace ravo::document {

DocumentReading ReadByOther(std::string_view utf8) { return ReadByScanner(ScanDocument(utf8)); }

}  // namespace ravo::document
