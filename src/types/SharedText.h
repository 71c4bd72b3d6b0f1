#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Export.h"

namespace ZAFHartTypes {

// An immutable UTF-8 text that copies by reference; threads may share it. A default-made one is "".
// Texts convert to it and it converts to them, so that it stands wherever a text is asked for.
class ZAF_API SharedText {
 public:
  SharedText() = default;
  SharedText(std::string text)  // NOLINT(google-explicit-constructor)
      : text_(text.empty() ? nullptr : std::make_shared<const std::string>(std::move(text))) {}
  SharedText(std::string_view text) : SharedText(std::string(text)) {}  // NOLINT
  SharedText(const char* text) : SharedText(std::string(text)) {}       // NOLINT

  bool IsEmpty() const { return text_ == nullptr; }
  // Good as long as some copy of the text lives.
  const std::string& Text() const;
  operator const std::string&() const { return Text(); }  // NOLINT(google-explicit-constructor)

  // By characters.
  friend bool operator==(const SharedText& a, const SharedText& b) {
    return a.text_ == b.text_ || a.Text() == b.Text();
  }

 private:
  std::shared_ptr<const std::string> text_;
};

}  // namespace ZAFHartTypes
