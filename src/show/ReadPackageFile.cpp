#include "PackageData.h"

#include <fstream>
#include <iterator>

// Kept apart from the parser: the Windows player reads files with its own calls, and file
// streams would more than double its size.
namespace zentor::show {

bool ReadPackageFile(const std::string& path, PackageForm form, PackageFile& out,
                     std::string& error) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "cannot open " + path;
        return false;
    }
    std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) {
        error = "cannot read " + path;
        return false;
    }
    out.Bytes = std::move(bytes);
    out.Info = ParsePackage(out.Bytes.data(), out.Bytes.size(), form);
    return true;
}

} // namespace zentor::show
