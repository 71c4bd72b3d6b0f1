#pragma once

// Interface of the plug-in "good"; not known to the library.
class IWidget {
 public:
  virtual ~IWidget() = default;
  virtual int Answer() const = 0;
};
