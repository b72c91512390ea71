// Another copy of the adapter in the process, which uses the same SQLite and is unloaded.
#include <string>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/statement.h"

#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

/// A loaded module; unloaded when it goes out of scope.
class LoadedCopy {
 public:
  LoadedCopy() : module_(dlopen(FERROWIND_ADAPTER_COPY, RTLD_NOW | RTLD_LOCAL)) {}
  ~LoadedCopy() {
    if (module_ != nullptr) dlclose(module_);
  }
  LoadedCopy(const LoadedCopy&) = delete;
  LoadedCopy& operator=(const LoadedCopy&) = delete;

  [[nodiscard]] int Ask(const std::string& connection_string) const {
    using Question = int (*)(const char*);
    const auto ask = reinterpret_cast<Question>(module_ ? dlsym(module_, "AskCopyOfAdapter") : nullptr);
    if (ask == nullptr) {
      ADD_FAILURE() << dlerror();
      return -1;
    }
    return ask(connection_string.c_str());
  }

 private:
  void* module_;
};

[[nodiscard]] bool IsACopyInMemory() {
  void* const module = dlopen(FERROWIND_ADAPTER_COPY, RTLD_NOW | RTLD_NOLOAD);
  if (module == nullptr) return false;
  dlclose(module);
  return true;
}

[[nodiscard]] std::string TablesIn(const sqlite::DatabaseHandle& database) {
  sqlite::Statement ask(database, "SELECT count(*) FROM sqlite_schema WHERE name = 'CldHistory'");
  return ask.Step() ? std::string(ask.Text(0)) : "no row";
}

TEST(SqliteUnloadedCopy, TakesNothingAwayFromTheCopyThatStays) {
  SqliteDatabase database;
  const int answer =
      database.Engine().Connect(database.ConnectionString())->Call("CldGetMain", {978, 2026}).return_value;
  for (int times = 0; times < 3; ++times) {
    {
      const LoadedCopy copy;
      EXPECT_EQ(copy.Ask(database.ConnectionString()), answer);
      EXPECT_EQ(TablesIn(sqlite::DatabaseHandle(database.Path())), "1");
    }
    ASSERT_FALSE(IsACopyInMemory());
    EXPECT_EQ(TablesIn(sqlite::DatabaseHandle(database.Path())), "1");
  }
}

TEST(SqliteUnloadedCopy, LeavesADatabaseUsableThatIsOpenMeanwhile) {
  SqliteDatabase database;
  const sqlite::DatabaseHandle open_before(database.Path());
  std::string during;
  {
    const LoadedCopy copy;
    EXPECT_GE(copy.Ask(database.ConnectionString()), 0);
    const sqlite::DatabaseHandle open_meanwhile(database.Path());
    during = TablesIn(open_meanwhile);
  }
  ASSERT_FALSE(IsACopyInMemory());
  EXPECT_EQ(during, "1");
  EXPECT_EQ(TablesIn(open_before), "1");
}

}  // namespace
}  // namespace ferrowind::contract
