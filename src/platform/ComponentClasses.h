#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Export.h"
#include "platform/Object.h"

namespace platform {

// Creates objects by class name of the form "project.class" (compared without regard to ASCII
// letter case). A class is registered in code or comes from a plug-in: for a project with no
// registered class, lib<project, lower case>.so is looked for in the plug-in path, never in the
// current directory. A plug-in stays loaded until the process ends.
class ZAF_API ComponentClasses {
 public:
  // Makes a new object; one that makes nothing fails with CannotCreateObject.
  using Factory = std::function<std::shared_ptr<Object>()>;

  // Replaces an earlier registration of the same name. Raises InvalidArgument for a name of another
  // form and for an empty factory.
  void Register(std::string_view className, Factory factory);

  // Raises CannotCreateObject for an unknown class, a missing or unusable plug-in and a plug-in of
  // another version; the description names the class, the project, the file and what is wrong.
  // A Failure of the factory passes, another std::exception becomes CannotCreateObject.
  std::shared_ptr<Object> Create(std::string_view className);

  // Create, then the interface; raises TypeMismatch when the object does not offer it.
  template <typename Interface>
  std::shared_ptr<Interface> CreateAs(std::string_view className) {
    auto object = std::dynamic_pointer_cast<Interface>(Create(className));
    if (!object) RaiseWrongInterface(className);
    return object;
  }

  // Folders that are searched in order. Relative ones are refused (InvalidArgument).
  void SetPluginPath(std::vector<std::filesystem::path> folders);
  const std::vector<std::filesystem::path>& PluginPath() const { return pluginPath_; }

  // The plug-in file that Create would load for a project; empty when the path holds none.
  std::filesystem::path FindPlugin(std::string_view project) const;

  // Loads one plug-in file and registers its classes; what Create does for an unknown project.
  // Returns the names of its classes. Raises InvalidArgument for a relative path and
  // CannotCreateObject, naming the file, when it cannot be used.
  std::vector<std::string> LoadPlugin(const std::filesystem::path& file);

  // Of all classes registered so far, as they were written; in alphabetical order.
  std::vector<std::string> RegisteredNames() const;

 private:
  [[noreturn]] static void RaiseWrongInterface(std::string_view className);
  [[noreturn]] void RaiseUnknownClass(std::string_view className, const std::string& project) const;
  bool HasClassOf(const std::string& project) const;
  void LoadProject(std::string_view className, const std::string& project);

  // By folded name: the name as registered, and its factory.
  std::map<std::string, std::pair<std::string, Factory>, std::less<>> factories_;
  std::map<std::string, std::filesystem::path> plugins_;  // by folded project
  std::vector<std::filesystem::path> pluginPath_;
};

// The part of a class name before its first "."; the whole name when it has none.
ZAF_API std::string_view ProjectOf(std::string_view className);

}  // namespace platform
