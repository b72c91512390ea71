#include "host/delivery/delivered_books.h"

#include <string>

#include "ferrowind/almanac/book_text.h"

#include "database/seed/delivered_books.h"

namespace ferrowind::host {
std::vector<almanac::NamedBook> DeliveredBooks() {
  std::vector<almanac::NamedBook> books;
  for (const auto& [name, text] : embedded::DeliveredBooks()) {
    books.push_back({std::string(name), almanac::ReadBook(text)});
  }
  return books;
}

}  // namespace ferrowind::host
