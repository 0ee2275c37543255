#include "cli/SearchCommand.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <iostream>
#include <memory>
#include <new>

#include "cli/Interrupt.h"
#include "cli/SearchOutput.h"
#include "tables/InputError.h"

namespace ostrel::cli {

namespace {

int Failed(const std::string& sentence, int status) {
    std::fprintf(stderr, "ostrel search: %s\n", sentence.c_str());
    return status;
}

int RunSearch(const SearchOptions& options) {
    const InterruptGuard guard;
    try {
        DirectorySearch search(options);
        search.Run();
        if (!search.Omissions().empty()) Failed(search.Omissions(), 0);
        if (!options.page.empty()) WriteResultsPage(search);
        if (options.json)
            PrintJson(search, std::cout);
        else
            PrintList(search, std::cout);
        if (!std::cout.flush()) return Failed("can't write the results.", 2);
        return search.Results().matching > 0 ? 0 : 1;
    } catch (const tables::InputError& error) {
        return Failed(error.what(), 2);
    } catch (const tables::Interruption&) {
        return Failed("Interrupted by User", 130);
    } catch (const std::bad_alloc&) {
        return Failed("There is not enough memory for these pages.", 2);
    }
}

} // namespace

void AddSearchCommand(CLI::App& app, int& status) {
    auto options = std::make_shared<SearchOptions>();
    CLI::App* command = app.add_subcommand("search", "Search the help pages of a directory");
    command->footer(
        "Pages are ranked: one match in a title counts more than all matches in texts, and a title "
        "that is the phrase most of all.\n"
        "Exit status: 0 pages match, 1 no page matches, 2 something is wrong.");
    command->add_option("DIRECTORY", options->directory, "Directory of the pages, with those below it")
        ->required();
    command->add_option("PHRASE", options->phrase, "What to search for; several words are one phrase")
        ->required();
    command->add_flag("-c,--match-case", options->matchCase, "Upper and lower case must agree");
    command->add_flag("-w,--whole-words", options->wholeWords, "Only words between blanks match");
    command->add_flag("--title", options->title, "Search titles (with bodies the default)");
    command->add_flag("--header", options->header,
                      "Search the heads of pages; --body has precedence over it");
    command->add_flag("--body", options->body, "Search bodies (with titles the default)");
    command->add_flag("--tags", options->tags, "Search the tags of bodies, too");
    command->add_option("-n,--lines", options->lines, "Most pages to list; all where not given")
        ->check(CLI::Range(1, 1'000'000'000))
        ->type_name("N");
    command->add_flag("-s,--show", options->show, "Show the first place in each page's text");
    command->add_option("--html", options->page, "Write the results as a page of links")->type_name("FILE");
    command->add_flag("--overwrite", options->overwrite, "Replace FILE even if this command has not made it");
    command->add_flag("--json", options->json, "Print the results as one JSON object");
    command->callback([options, &status] { status = RunSearch(*options); });
}

} // namespace ostrel::cli
