#include "ui/documents.h"

#include <gtest/gtest.h>

#include "run/run_state.h"

namespace zorvik {
namespace {

TEST(Documents, StandardsDocumentByMenuItemAndVersion) {
  struct Row {
    int item;
    float version;
    const char* document;
  };
  const Row rows[] = {
      {0, 1.2f, "las12_standards.txt"},       {0, 2.0f, "las20_standards.txt"},
      {0, 3.0f, "LAS3_FileStructure.pdf"},    {0, 2.1f, "las20_standards.txt"},
      {0, NO_VERSION, "las20_standards.txt"}, {1, 1.2f, "LAS3_FileStructure.pdf"},
      {2, 3.0f, "las20_standards.txt"},       {3, 3.0f, "las12_standards.txt"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.item << " " << row.version);
    EXPECT_EQ(standardsDocument(row.item, row.version), row.document);
  }
}

TEST(Documents, JustCertifiedCaptionNamesTheVersion) {
  struct Row {
    float version;
    const char* caption;
  };
  const Row rows[] = {
      {2.0f, "Just Certified Version:  (Ver 2)"},
      {1.2f, "Just Certified Version:  (Ver 1.2)"},
      {3.0f, "Just Certified Version:  (Ver 3)"},
      {NO_VERSION, "Just Certified Version:  (Ver 0.0)"},
      {0.0f, "Just Certified Version:  (Ver 0.0)"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.caption);
    EXPECT_EQ(justCertifiedCaption(row.version), row.caption);
  }
}

}  // namespace
}  // namespace zorvik
