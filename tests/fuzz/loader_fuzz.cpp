// Fuzz target of the model file loader: any bytes must load or fail with
// ModelFileError, and a model that loads must dump to a file that loads again
// to the same dump. Anything else (another exception, a crash, a sanitizer
// report, a dump that does not come back) is a bug.

#include "model/json/dumper.h"
#include "model/json/loader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> warnings;
  odb_Odb odb;
  try {
    odb = keydeck::LoadModelText(text, warnings);
  } catch (const keydeck::ModelFileError&) {
    return 0;
  }
  const std::string dump = keydeck::DumpModel(odb);
  try {
    if (keydeck::DumpModel(keydeck::LoadModelText(dump, warnings)) != dump)
      std::abort(); // the dump is not a fixed point
  } catch (const keydeck::ModelFileError&) {
    std::abort(); // the dump of a model that loaded does not load
  }
  return 0;
}
