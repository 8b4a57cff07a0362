#pragma once

#include "support/sample_company.h"

#include <sqlite3.h>

namespace kurbo::test {

// Another client that takes the id of a new card row first, as often as told.
class Collisions : public SampleCompany {
  protected:
    void takeIds(int times) {
        left = times;
        const auto taken = [](sqlite3_context* context, int, sqlite3_value**) {
            auto* self = static_cast<Collisions*>(sqlite3_user_data(context));
            ++self->attempts;
            sqlite3_result_int(context, self->left-- > 0 ? 1 : 0);
        };
        sqlite3_create_function_v2(connection.handle(), "Taken", 0, SQLITE_UTF8, this, taken, nullptr, nullptr,
                                   nullptr);
        connection.engine("CREATE TEMP TRIGGER Other BEFORE INSERT ON main.T02_Kurbo WHEN Taken() BEGIN "
                          "INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User) "
                          "VALUES (NEW.F_KurboID, NEW.F_DateID, '1002'); END");
    }
    int left = 0;
    int attempts = 0;
};

} // namespace kurbo::test
