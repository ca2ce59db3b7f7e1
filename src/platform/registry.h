// The system's registry: keys below two roots and the texts of their values, and what the programs keep there.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

enum class RegistryRoot { CurrentUser, LocalMachine };

// The types of values that are texts; in an expandable one, names between two "%" stand for environment variables.
inline constexpr unsigned long kRegistryText = 1;
inline constexpr unsigned long kRegistryExpandableText = 2;

struct RegistryValue {
  unsigned long Type = 0;
  std::size_t Size = 0;  // in bytes
};

// A key, open for as long as the object lives.
class RegistryKey {
 public:
  struct Peer;

  // Opens the key of that path ("SOFTWARE\Classes\.HTM"), whatever its case; for reading only where the user may
  // not do more. A failure is seen by IsOpen.
  RegistryKey(RegistryRoot root, const std::string& path);
  ~RegistryKey();
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  bool IsOpen() const;

  // What the value of that name is; the empty name is the key's default value. Nothing when the key is not open
  // or has no such value.
  std::optional<RegistryValue> Query(const std::string& name) const;

  // The text of a value, as it stands: no variable is replaced. Nothing when the value is not there or takes more
  // than `size` bytes.
  std::optional<std::string> ReadText(const std::string& name, std::size_t size) const;

 private:
  std::unique_ptr<Peer> peer_;
};

// What the programs remember from one run to the next: texts by name, in a key of their own below the user's root.
// Nothing is promised: what cannot be remembered is forgotten, and what is not there is empty.
inline constexpr const char* kOwnKey = "Software\\Larkspur Filer";
void Remember(const std::string& name, const std::string& text);
std::string Remembered(const std::string& name);
