#pragma once

#include <cstdint>

#include "job.h"
#include "tables/table.h"

namespace swiftroll::cli {

/// The options of the job, texts in UTF-8; an empty text for what was not given.
struct ParenteOptions {
    std::string fromId, toId;
    std::vector<std::string> tables;
    std::string output;
    /// The page of drawings, how it is drawn, and the rows to draw.
    std::string drawing, mode;
    std::vector<std::string> drawnRows;
    /// Number of paths that are drawn at most, 0 for all; and how they lie on the pages of a PDF.
    std::int64_t mostDrawings = 0;
    bool pathPerPage = false, fitToPage = false;
    /// Number of paths, and seconds, after which the search ends; 0 for no limit.
    std::int64_t mostPaths = 0;
    double mostSeconds = 0;
    /// Number of nearest paths to find in place of all; 0 for all.
    std::int64_t nearest = 0;
};

/// Searches the kinship paths between two individuals, prints tables of them, and draws them.
class ParenteJob : public Job {
  public:
    const char* Name() const override { return "parente"; }
    std::string Help() const override;
    void Declare(JobParser& parser) override;
    void Check() override;
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    bool Search(Session& session);
    bool MayWriteTables(Session& session);
    bool MarkRows(Session& session);
    ParenteOptions options_;
    int drawingMode_ = 0;  // its place in the list of the command
    std::vector<Table*> tables_;
    Text output_, drawing_;
};

}  // namespace swiftroll::cli
