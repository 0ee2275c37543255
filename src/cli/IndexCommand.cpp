#include "cli/IndexCommand.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <new>

#include "cli/DirectoryIndex.h"
#include "cli/HelpPageFile.h"
#include "cli/Interrupt.h"
#include "help/IndexPage.h"
#include "tables/CellText.h"
#include "tables/CountText.h"
#include "tables/InputError.h"

namespace ostrel::cli {

namespace {

struct IndexOptions {
    std::string directory, page, title = "Index";
    Long levels = 2;
    bool overwrite = false, quiet = false;
};

/// The index as HTML, with a line of letters above it.
Text IndexOf(const help::IndexStore& store) {
    Events events;
    Platform platform;
    RunFlags run;
    Context context{events, platform, run};
    HelpProperties draft;
    PageProperties settings;
    PageFonts fonts;
    const ServiceProperties service;
    const html::PageScope scope{context, draft, settings, fonts, service};
    help::IndexLook look;
    look.spaceSections = true;
    look.lettersAbove = true;
    return help::CreateIndex(scope, store, look);
}

int Failed(const std::string& sentence, int status) {
    std::fprintf(stderr, "ostrel index: %s\n", sentence.c_str());
    return status;
}

int RunIndex(const IndexOptions& options) {
    const InterruptGuard guard;
    try {
        HelpPageFile page(options.page, "index", options.overwrite);
        const DirectoryIndex index(options.directory, options.page, options.levels);
        if (!index.Omissions().empty()) Failed(index.Omissions(), 0);
        if (index.Pages() == 0) return Failed(options.directory + " holds no pages.", 1);
        const help::IndexStore store = index.Entries();
        page.Write(tables::HtmlArgument(options.title), IndexOf(store));
        if (!options.quiet)
            std::printf(
                "%s of %s in %s\n",
                (tables::Grouped(store.entries.size()) + (store.entries.size() == 1 ? " entry" : " entries"))
                    .c_str(),
                tables::Counted(index.Pages(), "page").c_str(), options.page.c_str());
        return 0;
    } catch (const tables::InputError& error) {
        return Failed(error.what(), 1);
    } catch (const tables::Interruption&) {
        return Failed("Interrupted by User", 130);
    } catch (const std::bad_alloc&) {
        return Failed("There is not enough memory for this index.", 1);
    }
}

} // namespace

void AddIndexCommand(CLI::App& app, int& status) {
    auto options = std::make_shared<IndexOptions>();
    CLI::App* command =
        app.add_subcommand("index", "Make an index page of the titles and headings of a directory");
    command->add_option("DIRECTORY", options->directory, "Directory of the pages, with those below it")
        ->required();
    command->add_option("-o,--output", options->page, "The page to write")->type_name("FILE")->required();
    command->add_option("--title", options->title, "Title of the page")->capture_default_str();
    command->add_option("--levels", options->levels, "Lowest level of headings, 0 for titles alone")
        ->check(CLI::Range(0, 6))
        ->capture_default_str();
    command->add_flag("--overwrite", options->overwrite, "Replace FILE even if this command has not made it");
    command->add_flag("-q,--quiet", options->quiet, "Print nothing where all is well");
    command->callback([options, &status] { status = RunIndex(*options); });
}

} // namespace ostrel::cli
