// Any bytes as a text or CSV file: read to the end, or refused with an error of the command; cells
// lie inside their line.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "error.hpp"
#include "rows.hpp"

namespace {

using namespace dakvm::tool;

void read_all(RowReader& rows) {
  Row row;
  while (rows.next(row))
    if (row.misshapen.empty())
      for (const std::string_view cell : row.cells)
        if (cell.data() < row.line.data() ||
            cell.data() + cell.size() > row.line.data() + row.line.size())
          std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const int cells = data[0] % 2 + 1;
  const bool csv = data[0] / 2 % 2 != 0;
  const int file = memfd_create("input", 0);
  if (write(file, data + 2, size - 2) != static_cast<ssize_t>(size - 2)) std::abort();
  lseek(file, 0, SEEK_SET);
  try {
    InputFile input("/proc/self/fd/" + std::to_string(file));
    CsvOptions options;
    options.header = data[0] / 4 % 2 != 0;
    options.delimiter = data[1] % 2 != 0 ? ',' : '\t';
    options.columns = {cells == 2 ? "1,2" : "2"};
    read_all(csv ? *read_csv(input, cells, options) : *read_text(input, cells));
  } catch (const Error&) {
  }
  close(file);
  return 0;
}
