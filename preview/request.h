#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What a browser asks of the preview and what it gets. All texts are UTF-8.
namespace corvanta {

struct FormValue {
    std::string name, value;
};

// A file that a form sent; its content is not kept.
struct SentFile {
    std::string name, fileName;
    std::uintmax_t size = 0; // bytes
};

struct PreviewRequest {
    bool post = false;
    std::string path; // below the token, decoded, without "/" at its front
    std::vector<FormValue> query, form;
    std::vector<SentFile> files;
};

struct PreviewAnswer {
    int status = 200;
    std::string type = "text/html; charset=utf-8";
    std::string body;
    std::string location;                       // of a redirection: path below the token, with its query
    std::vector<std::string> pictureHosts = {}; // "https://host" that the page's Image DB objects name
};

// The first value of a name; empty without one.
inline std::string valueOf(const std::vector<FormValue> &values, std::string_view name)
{
    for (const FormValue &v : values)
        if (v.name == name)
            return v.value;
    return {};
}

} // namespace corvanta
