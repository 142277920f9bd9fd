#pragma once

#include "box_operations.h"

#include <algorithm>
#include <string>

/// A box as a host might implement it. In the suite the host owns it, and a module only receives it.
class Box final : public ravo::DispatchObject<HostBox> {
 public:
  using Code = ravo::ResultCode;

  Code RAVO_STDCALL get_Name(char16_t** name) noexcept override {
    *name = ravo::WideString(name_).Release();
    return ravo::result_code::kOk;
  }
  Code RAVO_STDCALL put_Name(const char16_t* name) noexcept override {
    name_ = name;
    return ravo::result_code::kOk;
  }
  Code RAVO_STDCALL get_Count(std::int32_t* count) noexcept override {
    *count = count_;
    return ravo::result_code::kOk;
  }
  Code RAVO_STDCALL get_Unread(std::int32_t* count) noexcept override {
    *count = unread_;
    return ravo::result_code::kOk;
  }
  Code RAVO_STDCALL Receive(std::int32_t messages) noexcept override { return Change(messages, messages); }
  Code RAVO_STDCALL MarkAsRead(std::int32_t messages) noexcept override { return Change(0, -messages); }
  Code RAVO_STDCALL Remove(std::int32_t messages) noexcept override { return Change(-messages, 0); }
  Code RAVO_STDCALL Clear() noexcept override { return Change(-count_, -unread_); }
  Code RAVO_STDCALL Refresh() noexcept override { return ravo::result_code::kOk; }

  Code RAVO_STDCALL Invoke(std::int32_t id, const ravo::Guid&, std::uint32_t, std::uint16_t,
                           ravo::DispatchArguments* arguments, ravo::DispatchValue* answer,
                           ravo::DispatchError*, std::uint32_t*) noexcept override {
    if (id == kBoxCount && answer) {
      answer->type = ravo::dispatch_type::kInt32;
      return get_Count(&answer->int32);
    }
    if (id == kBoxReceive && arguments->count == 1) return Receive(arguments->values[0].int32);
    return ravo::result_code::kMemberNotFound;
  }

 private:
  Code Change(std::int32_t count, std::int32_t unread) noexcept {
    count_ = std::max(0, count_ + count);
    unread_ = std::clamp(unread_ + unread, 0, count_);
    return ravo::result_code::kOk;
  }

  std::u16string name_ = u"Schránka";
  std::int32_t count_ = 0;
  std::int32_t unread_ = 0;
};
