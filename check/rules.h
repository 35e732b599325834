#pragma once

#include "check/check.h"

#include <vector>

// One function a rule; check.cpp holds the table. Names within the folder only.
namespace corvanta {

void findOutside(const Checked &checked, const Report &report);
void findZeroSize(const Checked &checked, const Report &report);
void findCovered(const Checked &checked, const Report &report);
void findOverlaps(const Checked &checked, const Report &report);
void findTightTexts(const Checked &checked, const Report &report);
void findLowContrast(const Checked &checked, const Report &report);
void findTabOrder(const Checked &checked, const Report &report);
void findPages(const Checked &checked, const Report &report);
void findMedia(const Checked &checked, const Report &report);
void findTwins(const Checked &checked, const Report &report);
void findPlaceholders(const Checked &checked, const Report &report);
void findConditions(const Checked &checked, const Report &report);
void findNameless(const Checked &checked, const Report &report);
void findTransfers(const Checked &checked, const Report &report);
void findQuoting(const Checked &checked, const Report &report);
void findPassword(const Checked &checked, const Report &report);
void findSize(const Checked &checked, const Report &report);
void findUnknownKinds(const Checked &checked, const Report &report);

const ObjectRecord &recordAt(const Page &p, std::int16_t index);

// Shown objects with a tab index in the order of the Tab key.
std::vector<std::int16_t> tabOrder(const Page &p);
// The same objects in an order that a reader follows, as near to the tab order as can be; empty where there is none.
std::vector<std::int16_t> readingOrder(const Page &p);

// The name as the folder spells a media file or a page; the name itself when nothing is to be changed.
std::string mediaSpelling(const CheckFolder &folder, const std::string &name);
std::string pageSpelling(const CheckFolder &folder, const std::string &name);

// The fields of an object's file list that name files of the page's folder.
std::vector<int> mediaFields(const ObjectRecord &record);

} // namespace corvanta
