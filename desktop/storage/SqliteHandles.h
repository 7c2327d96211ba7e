#pragma once

#include <sqlite3.h>

#include <memory>

namespace quillon::desktop {

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using SqliteDatabase = std::unique_ptr<sqlite3, CloseDatabase>;
using SqliteStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

} // namespace quillon::desktop
