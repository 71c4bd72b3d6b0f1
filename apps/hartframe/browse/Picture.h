#pragma once

#include <optional>
#include <string>
#include <vector>

namespace hartframe::browse {

struct Size {
  int rows = 24;
  int columns = 80;
};

// The smallest screen that everything fits on.
inline constexpr Size kSmallest{24, 80};

// What a text is about; a terminal has a colour for each.
enum class Tone { Plain, Faint, Good, Pending, Different, Bad };

struct Line {
  std::string text;
  Tone tone = Tone::Plain;
};

// A list of which `height` lines from `top` on can be seen.
struct ListPicture {
  std::vector<Line> lines;
  std::size_t selected = 0;
  std::size_t top = 0;
  std::size_t height = 0;
};

// A text that is being typed; `cursor` counts characters.
struct FieldPicture {
  std::string text;
  std::size_t cursor = 0;
  bool hidden = false;
};

enum class DialogStyle { Information, Question, Warning, Error, Input };

// A window in the middle of the screen. Its lines stand in the order of the fields.
struct DialogPicture {
  DialogStyle style = DialogStyle::Information;
  std::string title;
  int width = 0;                  // inside the frame
  std::vector<std::string> text;  // what can be seen of it
  bool moreText = false;          // there is more above or below
  std::optional<ListPicture> list;
  std::optional<FieldPicture> field;
  std::vector<std::string> note;  // why something was not accepted
  std::string keys;
};

// All that is to be seen.
struct Picture {
  Size size;
  std::string path;
  std::string pathNote;  // at the right: why nothing can be changed
  std::string head;      // above the items: what their columns are; "" without a line of its own
  ListPicture items;
  std::string message;
  Tone messageTone = Tone::Plain;
  std::string progress;  // title of what is under way
  double percent = -1;   // below 0: nothing
  std::string status;
  std::string keys;
  std::vector<DialogPicture> dialogs;  // the last one on top
  std::string tooSmall;                // then nothing else is shown
};

}  // namespace hartframe::browse
