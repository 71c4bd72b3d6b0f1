#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "hartframe/manual/CommandLineModel.h"

namespace hartframe {

// --help in the words of the documentation, without those that the parser has for its checks.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_option_opts(const CLI::Option* option) const override {
    const std::string type = Documented(*option).type;
    const bool isRepeatable = option->get_items_expected_max() > 1;
    return (type.empty() ? "" : " " + type) + (isRepeatable ? " ..." : "");
  }

  std::string make_option_desc(const CLI::Option* option) const override {
    std::string text = Documented(*option).description;
    for (const CLI::Option* other : option->get_excludes())
      text += "; not with " + other->get_name();
    for (const CLI::Option* other : option->get_needs()) text += "; with " + other->get_name();
    return text;
  }
};

}  // namespace hartframe
