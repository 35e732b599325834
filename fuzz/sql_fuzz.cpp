#include "database/sql.h"
#include "fuzz/support.h"
#include "preview/statement_fill.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Page p = pageOf(bytesOf(data, size));
    const SqlText select = GenerateSelect(p, p.SelectStmt);
    const SqlText condition = BuildWhereClause(p);
    selectWholeTable(p.SelectStmt);
    DefaultColumns(ExtractColumnList(p.SelectStmt));
    ExtractOrderBy(p.SelectStmt);
    const std::string typed = "canary'\"; drop table t --";
    const ObjectValues values(static_cast<std::size_t>(objectCount(p)), typed);
    for (const std::string &text : {select.text, condition.text, p.SelectStmt}) {
        const FilledStatement filled = fillStatement(p, text, values);
        require(!filled.failure.empty() || text.find("canary") != std::string::npos ||
                    filled.statement.text.find("canary") == std::string::npos,
                "a value is no part of a statement");
    }
    return 0;
}
