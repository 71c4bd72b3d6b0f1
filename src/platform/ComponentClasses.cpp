#include "platform/ComponentClasses.h"

#include <algorithm>

#include "platform/AsciiText.h"
#include "platform/ForeignCall.h"
#include "platform/PluginFile.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSource = "ComponentClasses";

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

[[noreturn]] void RaiseCannotCreate(std::string_view className, const std::string& reason) {
  throw Failure(ErrorNumber::CannotCreateObject, kSource,
                "The component " + Quoted(className) + " cannot be created: " + reason);
}

// What can be part of a file name without leading out of its folder.
bool IsProjectName(std::string_view project) {
  return !project.empty() && std::all_of(project.begin(), project.end(), [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || c == '_' || c == '-';
  });
}

std::string PluginFileName(const std::string& project) {
  return "lib" + project + ".so";
}

std::string FolderList(const std::vector<fs::path>& folders) {
  if (folders.empty()) return "the plug-in path is empty";
  std::string text = "the plug-in path is ";
  for (const fs::path& folder : folders) {
    if (&folder != &folders.front()) text += ':';
    text += folder.string();
  }
  return text;
}

}  // namespace

std::string_view ProjectOf(std::string_view className) {
  return className.substr(0, className.find('.'));
}

void ComponentClasses::Register(std::string_view className, Factory factory) {
  if (ProjectOf(className).size() + 1 >= className.size() || className.starts_with('.')) {
    throw Failure(ErrorNumber::InvalidArgument, kSource,
                  "The class name " + Quoted(className) + R"( is not of the form "project.class")");
  }
  if (!factory) {
    throw Failure(ErrorNumber::InvalidArgument, kSource,
                  "The class " + Quoted(className) + " is registered without a factory");
  }
  factories_.insert_or_assign(FoldAscii(className),
                              std::pair(std::string(className), std::move(factory)));
}

std::shared_ptr<Object> ComponentClasses::Create(std::string_view className) {
  const std::string key = FoldAscii(className);
  auto found = factories_.find(key);
  if (found == factories_.end()) {
    const std::string project(ProjectOf(key));
    if (!HasClassOf(project)) LoadProject(className, project);
    found = factories_.find(key);
    if (found == factories_.end()) RaiseUnknownClass(className, project);
  }
  const Factory factory = found->second.second;
  auto object = CallForeign(className, factory, ErrorNumber::CannotCreateObject);
  if (!object) RaiseCannotCreate(className, "its factory made no object");
  return object;
}

bool ComponentClasses::HasClassOf(const std::string& project) const {
  const auto first = factories_.lower_bound(project + '.');
  return first != factories_.end() && first->first.starts_with(project + '.');
}

void ComponentClasses::LoadProject(std::string_view className, const std::string& project) {
  if (!IsProjectName(project) || project.size() == className.size()) {
    RaiseCannotCreate(className, R"(the name is not of the form "project.class")");
  }
  const fs::path file = FindPlugin(project);
  if (file.empty()) {
    RaiseCannotCreate(className, "project " + Quoted(ProjectOf(className)) +
                                     " is not registered, and there is no plug-in " +
                                     Quoted(PluginFileName(project)) + " (" +
                                     FolderList(pluginPath_) + ")");
  }
  try {
    LoadPlugin(file);
  } catch (const Failure& failure) {
    RaiseCannotCreate(className, "project " + Quoted(ProjectOf(className)) +
                                     " is not registered, and " + failure.Description());
  }
}

fs::path ComponentClasses::FindPlugin(std::string_view project) const {
  const std::string key = FoldAscii(project);
  if (!IsProjectName(key)) return {};
  for (const fs::path& folder : pluginPath_) {
    std::error_code error;
    fs::path file = folder / PluginFileName(key);
    if (fs::exists(file, error)) return file;
  }
  return {};
}

void ComponentClasses::RaiseUnknownClass(std::string_view className,
                                         const std::string& project) const {
  const auto plugin = plugins_.find(project);
  RaiseCannotCreate(className,
                    "project " + Quoted(ProjectOf(className)) + " has no such class" +
                        (plugin == plugins_.end() ? ""
                                                  : " (it comes from the plug-in " +
                                                        Quoted(plugin->second.string()) + ")"));
}

void ComponentClasses::RaiseWrongInterface(std::string_view className) {
  throw Failure(ErrorNumber::TypeMismatch, kSource,
                "The component " + Quoted(className) + " does not offer the interface asked for");
}

void ComponentClasses::SetPluginPath(std::vector<fs::path> folders) {
  for (const fs::path& folder : folders) {
    if (folder.is_relative()) {
      throw Failure(
          ErrorNumber::InvalidArgument, kSource,
          "The plug-in folder " + Quoted(folder.string()) + " is relative; give its full path");
    }
  }
  pluginPath_ = std::move(folders);
}

std::vector<std::string> ComponentClasses::LoadPlugin(const fs::path& file) {
  std::vector<std::string> names;
  for (PluginFactory& made : OpenPlugin(file)) {
    Register(made.className, std::move(made.create));
    plugins_.insert_or_assign(FoldAscii(ProjectOf(made.className)), file);
    names.push_back(std::move(made.className));
  }
  return names;
}

std::vector<std::string> ComponentClasses::RegisteredNames() const {
  std::vector<std::string> names;
  for (const auto& [key, entry] : factories_) names.push_back(entry.first);
  return names;
}

}  // namespace platform
