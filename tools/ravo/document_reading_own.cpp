#include "document_reading.h"

namespace tool {

DocumentReading ReadByOther(std::string_view utf8) { return ReadByScanner(ScanDocument(utf8)); }

}  // namespace tool
