// Feeds arbitrary bytes to the references, as text that is kept and as text that is shown: either comes back as it was,
// and a cut, where the last byte says, never goes through a reference.
#include <cstdint>
#include <cstring>

#include "support/properties.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 4096) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::u16string wide(size / 2, 0);
  std::memcpy(wide.data(), bytes.data(), size / 2 * 2);
  RequireReferencesHold(bytes, size == 0 ? 0 : data[size - 1] % size);
  RequireReferencesHold(wide);
  RequireReferencesHold(std::u16string(bytes.begin(), bytes.end()));
  return 0;
}
