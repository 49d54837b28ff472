#include "Readers.h"

#include <algorithm>

/// Tries the reader that READER names.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace iceline::test;
    static const auto reader = std::ranges::find(allReaders(), READER, &Reader::name);
    require(reader != allReaders().end(), "there is a reader " READER);
    reader->read({data, data + size});
    return 0;
}
