#pragma once

#include <filesystem>
#include <string>

namespace corvanta {

// A page of the user's own that leads a browser to the preview. The address holds the preview's token, and what stands
// among a program's arguments can be read by every user of the machine. Removed at the end.
class AddressFile {
public:
    AddressFile() = default;
    ~AddressFile();
    AddressFile(const AddressFile &) = delete;
    AddressFile &operator=(const AddressFile &) = delete;

    // Writes the page that leads to an address; its path, empty when it could not be written.
    const std::filesystem::path &leadTo(const std::string &address);

private:
    std::filesystem::path file;
};

} // namespace corvanta
