// A plugin for clang-tidy.
//
// It has clazy look at each file too, so that a file is read once for both tools: reading is the greater part of the time.
// KQTUI_CLAZY_CHECKS are the checks, as clazy-standalone takes them; clazy's own plugin must be loaded as well.
//
// What clang-tidy's matchers walk over are the repository's own declarations alone, not those of Qt and the standard library,
// of which every file brings a hundred times as many. Nothing could be reported there anyway. KQTUI_OWN_FOLDER is the folder
// that counts.
//
// With KQTUI_OWN_BODIES the bodies of others' functions are not even read, but for those that the compiler needs to go on: a
// third less of the time. The analyzer then takes what such a function does as unknown.
#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/AST/Decl.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/CompilerInstance.h>
#include <clang/Frontend/FrontendAction.h>
#include <clang/Frontend/FrontendPluginRegistry.h>
#include <clang/Frontend/MultiplexConsumer.h>
#include <llvm/Support/ErrorHandling.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

/// Whether something stands in the repository, and not in a header of others.
bool isOwn(const clang::Decl* declaration, const clang::SourceManager& sources, const char* folder)
{
    const auto place = sources.getExpansionLoc(declaration->getLocation());
    return place.isValid() && !sources.isInSystemHeader(place) && sources.getFilename(place).startswith(folder);
}

class OwnDeclarations : public clang::ASTConsumer
{
public:
    bool HandleTopLevelDecl(clang::DeclGroupRef group) override
    {
        m_all.insert(m_all.end(), group.begin(), group.end());
        return true;
    }

    bool shouldSkipFunctionBody(clang::Decl* function) override
    {
        const char* folder = std::getenv("KQTUI_OWN_FOLDER");
        return folder && !isOwn(function, function->getASTContext().getSourceManager(), folder);
    }

    void HandleTranslationUnit(clang::ASTContext& context) override
    {
        const char* folder = std::getenv("KQTUI_OWN_FOLDER");
        if (!folder)
            return;
        const clang::SourceManager& sources = context.getSourceManager();
        std::vector<clang::Decl*> own;
        for (clang::Decl* declaration : m_all) {
            if (isOwn(declaration, sources, folder))
                own.push_back(declaration);
        }
        context.setTraversalScope(own);
    }

private:
    std::vector<clang::Decl*> m_all;
};

// Clang starts a plugin that waits for its option, as clazy does, only from a compiler's command line; clang-tidy takes that
// option out.
class Clazy
{
public:
    Clazy()
    {
        for (const auto& entry : clang::FrontendPluginRegistry::entries())
            if (entry.getName() == "clazy")
                m_action = entry.instantiate();
        if (!m_action)
            llvm::report_fatal_error("clazy's plugin is not loaded");
    }

    std::unique_ptr<clang::ASTConsumer> consumer(clang::CompilerInstance& compiler, llvm::StringRef file,
                                                 const std::string& checks)
    {
        if (!(m_action.get()->*&Opened::ParseArgs)(compiler, {checks}))
            llvm::report_fatal_error("clazy refuses its arguments");
        return (m_action.get()->*&Opened::CreateASTConsumer)(compiler, file);
    }

private:
    struct Opened : clang::PluginASTAction
    {
        using clang::PluginASTAction::CreateASTConsumer;
        using clang::PluginASTAction::ParseArgs;
    };

    std::unique_ptr<clang::PluginASTAction> m_action;
};

class Action : public clang::PluginASTAction
{
protected:
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance& compiler, llvm::StringRef file) override
    {
        compiler.getFrontendOpts().SkipFunctionBodies = std::getenv("KQTUI_OWN_BODIES") != nullptr;
        std::vector<std::unique_ptr<clang::ASTConsumer>> consumers;
        // clazy comes first: it wants to see Qt's declarations.
        if (const char* checks = std::getenv("KQTUI_CLAZY_CHECKS")) {
            m_clazy = std::make_unique<Clazy>();
            consumers.push_back(m_clazy->consumer(compiler, file, checks));
        }
        consumers.push_back(std::make_unique<OwnDeclarations>());
        return std::make_unique<clang::MultiplexConsumer>(std::move(consumers));
    }
    bool ParseArgs(const clang::CompilerInstance& /*compiler*/, const std::vector<std::string>& /*arguments*/) override
    {
        return true;
    }
    ActionType getActionType() override { return AddBeforeMainAction; }

private:
    std::unique_ptr<Clazy> m_clazy;
};

const clang::FrontendPluginRegistry::Add<Action> registration("own-declarations", "own declarations alone, and clazy");

} // namespace
