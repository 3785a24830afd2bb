#include "support/TestSupport.h"

#include <fstream>
#include <sstream>

namespace ZelTest {

std::string ReadDataFile(const std::string& name) {
    std::ifstream in(std::string(ZEL_TEST_DATA_ROOT) + "/" + name, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

} // namespace ZelTest
