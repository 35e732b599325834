#pragma once

#include "document/page.h"
#include "preview/template_fill.h"

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

// Where the pictures of a page's Image DB objects come from. Everything else that a page shows lies in its directory
// itself.
namespace corvanta {

// The hosts ("https://host") that their paths name. A value of a record names none: markup in a caption could carry the
// other values to a host of its choice.
std::vector<std::string> pictureHosts(const Page &p);

// The folders below the directory that its paths name, and, for objects without a path, those of their values. Bytes of
// the code page, "/" between the names.
std::vector<std::string> pictureFolders(const Page &p, const std::vector<TemplateValue> &values);

// The folders of the pages that were shown. May be called from many threads.
class PictureFolders {
public:
    void add(const std::vector<std::string> &named);
    bool holds(std::string_view folder) const; // without regard to case

private:
    mutable std::mutex mutex;
    std::vector<std::string> folders;
};

} // namespace corvanta
