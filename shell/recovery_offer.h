#pragma once

namespace corvanta {

// Offers the pages that dead editors left, one after the other, until one is recovered: Recover, Discard or Later.
void offerLostPages();

} // namespace corvanta
