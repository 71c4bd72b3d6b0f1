#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hartframe/Session.h"

namespace hartframe::browse {

struct PageItem {
  ZAFHartTypes::Definition definition;
  bool readOnly = false;
};

// A screen of the DTM: the start, a menu, an edit display or a group that is written as one. Says
// how the kernel is told what the user does on it. Operations may wait for the device.
class Page {
 public:
  explicit Page(Session& session) : session_(session) {}
  virtual ~Page() = default;
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  // In all languages.
  virtual std::string Label() = 0;
  // As they are now.
  virtual std::vector<PageItem> Items() = 0;
  // Opens the menu, edit display or group; nothing for an item that is none of them.
  virtual std::unique_ptr<Page> Open(const PageItem&) { return nullptr; }
  virtual void RunMethod(const PageItem&) {}
  // The user enters, or leaves, the variable's field, which may be replaced. When he leaves it, the
  // kernel asks the control what he has typed.
  virtual void Enter(std::shared_ptr<ZAFHartTypes::Variable>&) {}
  virtual void Leave(std::shared_ptr<ZAFHartTypes::Variable>&) {}
  // The user leaves the page. False when it is not complete.
  virtual bool Close() { return true; }
  // Takes back what was changed on a page that is not complete.
  virtual void GiveUp() {}
  // A group's member: it has been looked at.
  virtual bool MarksChecked() const { return false; }

 protected:
  Session& Frame() { return session_; }

 private:
  Session& session_;
};

// What the user starts from: the DTM's root and standard menus.
std::unique_ptr<Page> MakeStartPage(Session& session);

}  // namespace hartframe::browse
