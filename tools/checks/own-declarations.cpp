// A plugin for clang-tidy: what its matchers walk over are the repository's own declarations alone, not those of Qt and
// the standard library, of which every file brings a hundred times as many. Nothing could be reported there anyway.
//
// KQTUI_OWN_FOLDER is the folder that counts.
#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/AST/Decl.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/CompilerInstance.h>
#include <clang/Frontend/FrontendAction.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace {

class OwnDeclarations : public clang::ASTConsumer
{
public:
    bool HandleTopLevelDecl(clang::DeclGroupRef group) override
    {
        m_all.insert(m_all.end(), group.begin(), group.end());
        return true;
    }

    void HandleTranslationUnit(clang::ASTContext& context) override
    {
        const char* folder = std::getenv("KQTUI_OWN_FOLDER");
        if (!folder)
            return;
        const clang::SourceManager& sources = context.getSourceManager();
        std::vector<clang::Decl*> own;
        for (clang::Decl* declaration : m_all) {
            const auto place = sources.getExpansionLoc(declaration->getLocation());
            if (place.isValid() && !sources.isInSystemHeader(place) && sources.getFilename(place).startswith(folder))
                own.push_back(declaration);
        }
        context.setTraversalScope(own);
    }

private:
    std::vector<clang::Decl*> m_all;
};

class Action : public clang::PluginASTAction
{
protected:
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance& /*compiler*/,
                                                          llvm::StringRef /*file*/) override
    {
        return std::make_unique<OwnDeclarations>();
    }
    bool ParseArgs(const clang::CompilerInstance& /*compiler*/, const std::vector<std::string>& /*arguments*/) override
    {
        return true;
    }
    ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<Action> registration("own-declarations", "walk over own declarations alone");

} // namespace
