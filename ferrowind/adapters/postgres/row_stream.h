#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <libpq-fe.h>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// The rows of a query as the server sends them, without an end in between: by COPY in the binary format.
/// They are never all in memory. Nothing else uses the connection before the stream is destroyed.
class RowStream : public content::RowReader {
 public:
  /// `query` has `columns` columns; an answer with another number of them is a failure. `connection` must
  /// outlive the stream.
  RowStream(ServerConnection& connection, const std::string& query, std::size_t columns);
  RowStream(const RowStream&) = delete;
  RowStream& operator=(const RowStream&) = delete;
  /// Takes what is still on its way.
  ~RowStream() override;

  [[nodiscard]] bool Next(content::Row& row) override;

 private:
  struct MemoryFree {
    void operator()(char* memory) const { PQfreemem(memory); }
  };

  [[nodiscard]] bool Receive();
  [[nodiscard]] int ReceiveMessage();
  [[nodiscard]] std::string_view Take(std::size_t size);
  template <typename Number>
  [[nodiscard]] Number TakeNumber();
  void TakeHeader();
  void Finish();

  ServerConnection& connection_;
  std::vector<Oid> types_;
  std::vector<std::string> names_;
  /// The row that came last, and what of it is not read yet.
  std::unique_ptr<char, MemoryFree> message_;
  std::string_view rest_;
  bool is_at_start_ = true;
  bool is_at_end_ = false;
};

}  // namespace ferrowind::postgres
