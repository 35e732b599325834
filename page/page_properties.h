#pragma once

#include "document/page.h"

#include <string>

// What the page properties dialog shows and writes back.
namespace corvanta {

// The dialog's fields, named as its controls.
struct PagePropertyFields {
    std::string imgfn, sndfn;
    std::string bkgcol;       // hexadecimal digits
    std::string bkght, bkgwd; // pixels, decimal
    bool sizeTyped = true;    // height and width are enabled; else the background image gives them
    int PageType = 0;         // index of the list
    std::string dsn, Username, Password, deftbl;
    std::string SelectStmt, pgcaption, keyreq;
    bool rtl = false, anonymous = false, replacehtml = false;
};

PagePropertyFields LoadPageProperties(const Page &p);

// The entries of the page type list, in order.
const std::vector<const char *> &pageTypeNames();

// What the dialog shows for a page type.
bool showsDefaultTable(int pageType);
bool showsSelectStatement(int pageType);

// Whether height and width can be typed: not while a background image is named.
bool sizeIsTyped(const std::string &imgfn);

struct ScreenSize {
    int width = 0, height = 0; // pixels
};

// Checks the fields in their order, telling the first fault, and writes them to the process-wide page with its
// background picture and sound. focus names the control that a fault is about.
struct PageConfirmation {
    bool stored = false;
    std::string focus;
};
PageConfirmation ConfirmPageProperties(const PagePropertyFields &fields, ScreenSize screen);

} // namespace corvanta
