// [include]
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <iostream>

using namespace ravo;
using namespace ravo::RavoInterfaceCommon;
// [/include]

int main() {
  // [literal]
  const DateTime booked = EncodeDateTime({{2026, 1, 31}, {14, 5, 9, 120}});
  std::cout << "WHERE Booked >= '" << ToUtf8(DateTimeToSQLString(booked)) << "'\n";
  std::cout << ToUtf8(DateToSQLString(booked)) << " and " << ToUtf8(TimeToSQLString(booked)) << "\n";
  // [/literal]
  // [period]
  std::cout << ToUtf8(DateToSQLString(ChangeMonth(booked, 1))) << "\n";
  DateTime first = 0;
  DateTime last = 0;
  FirstLastDay(2028, 2, first, last);
  std::cout << ToUtf8(DateToSQLString(first)) << " to " << ToUtf8(DateToSQLString(last)) << "\n";
  // [/period]
  // [uid]
  std::cout << "WHERE UID = " << ToUtf8(UIDToString(Variant(u"7F3A"), true)) << "\n";
  std::cout << "WHERE UID = " << ToUtf8(UIDToString(Variant(), true)) << "\n";
  // [/uid]
}
