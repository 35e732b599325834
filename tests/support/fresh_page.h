#pragma once

#include "document/events.h"
#include "document/objects.h"
#include "document/page_file.h"

#include <gtest/gtest.h>

namespace corvanta {

// The process-wide page, new and of a size in pixels, for the time of a test; its directory is C:\.
class FreshPage : public testing::Test {
protected:
    explicit FreshPage(std::int16_t width = 400, std::int16_t height = 300)
    {
        reset();
        editing().curdir = "C:\\";
        page().bkgwd = width;
        page().bkght = height;
    }
    ~FreshPage() override { reset(); }

    static ObjectRecord &object(int index) { return page().objects[static_cast<std::size_t>(index)]; }
    static std::int16_t addAt(Kind kind, int left, int top, int width, int height)
    {
        const std::int16_t index = addObject(kind);
        const auto narrow = [](int pixels) { return static_cast<std::int16_t>(pixels); };
        setObjectGeometry(index, narrow(top), narrow(left), narrow(height), narrow(width));
        editing().pagedirty = false;
        return index;
    }

private:
    static void reset()
    {
        documentEvents() = {};
        newPage();
        editing() = {};
    }
};

} // namespace corvanta
