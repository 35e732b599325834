#include "tests/support/temporary_drive.h"

#include "platform/paths.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace corvanta {

TemporaryDrive::TemporaryDrive()
{
    std::string name = (std::filesystem::temp_directory_path() / "corvanta-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no temporary folder " + name);
    folder = name;
    setDriveRoot(folder);
}

TemporaryDrive::~TemporaryDrive()
{
    setDriveRoot("/");
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

std::filesystem::path TemporaryDrive::add(const std::filesystem::path &name, std::string_view bytes) const
{
    const std::filesystem::path file = folder / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file;
}

std::string hostBytes(const std::filesystem::path &file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace corvanta
