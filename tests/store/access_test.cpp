#include "store/access.h"

#include "support/sample_company.h"

namespace kurbo::test {

using Access = SampleCompany;

TEST_F(Access, ARowGivesItsRights) {
    AccessRights access;
    access.IsAdmin = true;
    ASSERT_TRUE(GetAccess(desk.context, connection, u"1002"_q, mySection(), access));
    EXPECT_TRUE(access.AccessFound && access.CanPunch && !access.IsAdmin);
    EXPECT_TRUE(access.has(Right::ReadOtherKurbo) && access.has(Right::WriteApproval));
    EXPECT_FALSE(access.has(Right::DeleteMyData));
}

// Every right comes from the field of its own name.
TEST_F(Access, NoRightIsTakenForAnother) {
    for (std::size_t i = 0; i < rightCount; ++i) {
        const QString field = fieldOf(static_cast<Right>(i));
        connection.execute(u"DELETE * FROM M08_Access WHERE F_AccessCode = 1"_q);
        connection.execute(u"INSERT INTO M08_Access (F_AccessCode, F_Section, "_q + field +
                           u") VALUES (1, 'MySection', True)"_q);
        AccessRights access;
        ASSERT_TRUE(GetAccess(desk.context, connection, u"1001"_q, mySection(), access));
        for (std::size_t j = 0; j < rightCount; ++j) EXPECT_EQ(access.rights[j], i == j) << field;
    }
}

TEST_F(Access, WithoutARowOnlyTheReadRightsFall) {
    AccessRights access;
    ASSERT_TRUE(GetAccess(desk.context, connection, u"1002"_q, mySection(), access));
    ASSERT_TRUE(GetAccess(desk.context, connection, u"1002"_q, u"S99"_q, access));
    EXPECT_FALSE(access.AccessFound || access.CanPunch || access.IsAdmin);
    EXPECT_FALSE(access.has(Right::ReadMyKurbo) || access.has(Right::ReadOtherKurbo));
    EXPECT_TRUE(access.has(Right::WriteApproval));
}

TEST_F(Access, TheAdministratorIsWhoHasNoRow) {
    AccessRights access;
    ASSERT_TRUE(GetAccess(desk.context, connection, u"admin"_q, mySection(), access));
    EXPECT_TRUE(access.AccessFound && access.IsAdmin && !access.CanPunch);
    connection.execute(u"UPDATE M02_StaffInfo SET F_Access = 1 WHERE F_StaffCode = 'ADMIN'"_q);
    ASSERT_TRUE(GetAccess(desk.context, connection, u"ADMIN"_q, mySection(), access));
    EXPECT_TRUE(access.CanPunch && !access.IsAdmin);
}

TEST_F(Access, AFailureLeavesTheFlags) {
    AccessRights access;
    ASSERT_TRUE(GetAccess(desk.context, connection, u"1002"_q, mySection(), access));
    connection.close();
    desk.prompts.expect(u"エラー番号："_q);
    EXPECT_FALSE(GetAccess(desk.context, connection, u"1002"_q, mySection(), access));
    EXPECT_TRUE(access.AccessFound && access.has(Right::ReadOtherKurbo));
}

} // namespace kurbo::test
