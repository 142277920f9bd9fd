#include <ravo/hostapi/c_constants.h>
#include <ravo/hostapi/interfaces.h>

#include <bit>

#define RAVO_TYPE_LIBRARY(library, identifier) \
  constinit const RavoGuid LIBID_##library = std::bit_cast<RavoGuid>(ravo::library##_TLB::LIBID_##library);
#define RAVO_HOST_INTERFACE(library, name, base, identifier, operations) \
  constinit const RavoGuid IID_##name = std::bit_cast<RavoGuid>(ravo::library##_TLB::IID_##name);
#define RAVO_HOST_CLASS(library, name, returned, identifier) \
  constinit const RavoGuid CLASS_##name = std::bit_cast<RavoGuid>(ravo::library##_TLB::CLASS_##name);
#include <ravo/hostapi/interfaces.inc>
