#include "core/record_syntax.h"

#include "core/trap.h"

#include <gtest/gtest.h>

TEST(FieldReader, LineEndsAndCommasSeparateAlike) {
    FieldReader in("1,2\r\n3\n4\r5");
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(in.int16(), i);
    EXPECT_TRUE(in.at_end());
    EXPECT_EQ(failure_of([&] { in.int16(); }), 62);
}

TEST(FieldReader, CommasAndLineEndsInsideQuotesAreText) {
    FieldReader in("\"a,b\r\nc\",\" d \"");
    EXPECT_EQ(in.text(), "a,b\r\nc");
    EXPECT_EQ(in.text(), " d ");
}

TEST(FieldReader, BlanksOutsideQuotesArePassedOver) {
    FieldReader in("  \"a\" \t, 5 ,plain text \r\n");
    EXPECT_EQ(in.text(), "a");
    EXPECT_EQ(in.int16(), 5);
    EXPECT_EQ(in.text(), "plain text");
}

TEST(FieldReader, CommaBeforeALineEndLeavesAnEmptyFieldBetween) {
    FieldReader in("1,\r\n2");
    EXPECT_EQ(in.int16(), 1);
    EXPECT_EQ(in.int16(), 0);
    EXPECT_EQ(in.int16(), 2);
}

TEST(FieldReader, BlankLineIsOneEmptyField) {
    FieldReader in("\"a\"\r\n\r\n\"b\"");
    EXPECT_EQ(in.text(), "a");
    EXPECT_EQ(in.text(), "");
    EXPECT_EQ(in.text(), "b");
}

TEST(FieldReader, TextBehindAClosingQuoteBeginsTheNextField) {
    FieldReader in("\"a\"b\",7");
    EXPECT_EQ(in.text(), "a");
    EXPECT_EQ(in.text(), "b\"");
    EXPECT_EQ(in.int16(), 7);
}

TEST(FieldReader, MissingClosingQuoteRunsToTheEnd) {
    FieldReader in("\"a,b\r\n");
    EXPECT_EQ(in.text(), "a,b\r\n");
    EXPECT_EQ(failure_of([&] { in.text(); }), 62);
}

TEST(FieldReader, EmptyFieldIsNothingOfEachType) {
    FieldReader in(",,,,");
    EXPECT_EQ(in.int16(), 0);
    EXPECT_FALSE(in.boolean());
    EXPECT_EQ(in.text(), "");
    EXPECT_EQ(in.single(), 0);
}

TEST(FieldReader, NumbersInQuotesAreNumbers) {
    FieldReader in("\"12\"");
    EXPECT_EQ(in.int16(), 12);
}

TEST(FieldReader, FractionsMayLackTheirZero) {
    FieldReader in(".5,0.5,-.5");
    EXPECT_EQ(in.double_number(), 0.5);
    EXPECT_EQ(in.single(), 0.5F);
    EXPECT_EQ(in.double_number(), -0.5);
}

TEST(FieldReader, FractionInAWholeNumberFieldGoesToTheEvenNeighbour) {
    FieldReader in("2.5,3.5,2.4");
    EXPECT_EQ(in.int16(), 2);
    EXPECT_EQ(in.int16(), 4);
    EXPECT_EQ(in.long_integer(), 2);
}

TEST(FieldReader, NumbersOutOfRangeFailWith6) {
    EXPECT_EQ(failure_of([] { FieldReader("32768").int16(); }), 6);
    EXPECT_EQ(failure_of([] { FieldReader("-32769").int16(); }), 6);
    EXPECT_EQ(failure_of([] { FieldReader("2147483648").long_integer(); }), 6);
    EXPECT_EQ(failure_of([] { FieldReader("2147483663").long_integer(); }), 6);
    EXPECT_EQ(FieldReader("-2147483633").long_integer(), -2147483633);
    EXPECT_EQ(failure_of([] { FieldReader("1e39").single(); }), 6);
}

TEST(FieldReader, TextInANumberFieldFailsWith13) {
    EXPECT_EQ(failure_of([] { FieldReader("abc").int16(); }), 13);
    EXPECT_EQ(failure_of([] { FieldReader("\"1 2\"").int16(); }), 13);
    EXPECT_EQ(failure_of([] { FieldReader("#YES#").boolean(); }), 13);
}

TEST(FieldReader, BooleansInAnyLetterCaseOrAsNumbers) {
    FieldReader in("#TRUE#,#false#,#True#,-1,0");
    EXPECT_TRUE(in.boolean());
    EXPECT_FALSE(in.boolean());
    EXPECT_TRUE(in.boolean());
    EXPECT_TRUE(in.boolean());
    EXPECT_FALSE(in.boolean());
}

TEST(FieldReader, ByteOrderMarkIsPassedOver) {
    FieldReader in("\xEF\xBB\xBF\"1.0\"");
    EXPECT_EQ(in.text(), "1.0");
}

TEST(FieldReader, EndIsWhereOnlyBlanksAndLineEndsAreLeft) {
    FieldReader in("1\r\n \r\n\t");
    EXPECT_FALSE(in.at_end());
    in.int16();
    EXPECT_TRUE(in.at_end());
}

TEST(FieldWriter, WritesARecordALine) {
    FieldWriter out;
    out.text("a").integer(-5).boolean(true).boolean(false).double_number(0.5).single(0.1F).end_record();
    out.integer(7).end_record();
    EXPECT_EQ(out.bytes(), "\"a\",-5,#TRUE#,#FALSE#,0.5,0.1\r\n7\r\n");
}
