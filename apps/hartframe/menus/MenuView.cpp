#include "hartframe/menus/MenuView.h"

#include "hartframe/menus/MenuTexts.h"

namespace hartframe {

using ZAFHartTypes::AccessMode;
using ZAFHartTypes::ObjectKind;

std::string KindText(ObjectKind kind, const Speech& speech) {
  switch (kind) {
    case ObjectKind::Menu:
      return speech(texts::kKindMenu);
    case ObjectKind::EditDisplay:
      return speech(texts::kKindEditDisplay);
    case ObjectKind::Method:
      return speech(texts::kKindMethod);
    case ObjectKind::WriteAsOne:
      return speech(texts::kKindGroup);
    default:
      return {};
  }
}

std::string StateText(const MenuRow& row, const Speech& speech) {
  std::string text = row.variable ? StateText(*row.variable, speech)
                     : row.valid  ? std::string()
                                  : speech(Text::StateNotValid);
  const bool told = row.variable && !row.variable->variable->CheckHandling(AccessMode::Write);
  if (row.readOnly && !told) text += (text.empty() ? "" : ", ") + speech(Text::StateReadOnly);
  return text;
}

}  // namespace hartframe
