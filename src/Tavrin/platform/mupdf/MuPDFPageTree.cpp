// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFPageTree.h>

#include <QSet>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Tavrin::MuPDFPageTree
{

namespace
{

/// What an engine shows of a page without a usable media box: US Letter.
constexpr Rect defaultBox{{0, 0}, {612, 792}};

/// A stream has a dictionary and is none.
bool isDictionary(fz_context *context, pdf_obj *object)
{
    return pdf_is_dict(context, object) && !pdf_is_stream(context, object);
}

/// The page tree as it was found. Keeps the references that it holds: an object that can't be read
/// makes the engine repair the file, and that frees what it had read before.
class Walk
{
public:
    explicit Walk(const MuPDFSession &session) : m_session(session) {}
    ~Walk() { clear(); }
    Walk(const Walk &) = delete;
    Walk &operator=(const Walk &) = delete;

    /// Forgets what was found before. Without a root nothing is found.
    void run(pdf_obj *root);

    const std::vector<pdf_obj *> &pages() const { return m_pages; }

private:
    void clear();
    void visit(pdf_obj *node);
    /// The number of children, or nothing for a page.
    std::optional<int> kidCount(pdf_obj *node) const;
    void keepKid(pdf_obj *node, int index);

    const MuPDFSession &m_session;
    std::vector<pdf_obj *> m_pages;
    std::vector<pdf_obj *> m_pending;
    QSet<const pdf_obj *> m_visited;
};

void Walk::clear()
{
    for (std::vector<pdf_obj *> *list : {&m_pages, &m_pending}) {
        for (pdf_obj *object : *list)
            pdf_drop_obj(m_session.context(), object);
        list->clear();
    }
    m_visited.clear();
}

std::optional<int> Walk::kidCount(pdf_obj *node) const
{
    int count = -1;
    m_session.run([node, &count](fz_context *context, pdf_document *) {
        pdf_obj *kids = pdf_dict_get(context, node, PDF_NAME(Kids));
        count = pdf_is_array(context, kids) ? pdf_array_len(context, kids) : -1;
    });
    return count < 0 ? std::nullopt : std::optional(count);
}

void Walk::keepKid(pdf_obj *node, int index)
{
    pdf_obj *kept = nullptr;
    m_session.run([=, &kept](fz_context *context, pdf_document *) {
        pdf_obj *kids = pdf_dict_get(context, node, PDF_NAME(Kids));
        pdf_obj *kid = pdf_keep_obj(context, pdf_array_get(context, kids, index));
        if (isDictionary(context, kid))
            kept = kid;
        else
            pdf_drop_obj(context, kid);
    });
    if (kept)
        m_pending.push_back(kept);
}

void Walk::visit(pdf_obj *node)
{
    const pdf_obj *identity = pdf_resolve_indirect_chain(m_session.context(), node);
    if (m_visited.contains(identity))
        return;
    m_visited.insert(identity);
    for (int index = kidCount(node).value_or(0); index-- > 0;)
        keepKid(node, index);
}

void Walk::run(pdf_obj *root)
{
    clear();
    if (root)
        m_pending.push_back(pdf_keep_obj(m_session.context(), root));
    while (!m_pending.empty()) {
        pdf_obj *node = m_pending.back();
        m_pending.pop_back();
        if (!kidCount(node)) {
            m_pages.push_back(node);
            continue;
        }
        visit(node);
        pdf_drop_obj(m_session.context(), node);
    }
}

pdf_obj *rootNode(const MuPDFSession &session)
{
    pdf_obj *root = nullptr;
    session.run([&root](fz_context *context, pdf_document *document) {
        pdf_obj *catalog = pdf_dict_get(context, pdf_trailer(context, document), PDF_NAME(Root));
        pdf_obj *found = pdf_dict_get(context, catalog, PDF_NAME(Pages));
        root = isDictionary(context, found) ? found : nullptr;
    });
    return root;
}

/// What an object is in the engine's eyes, whatever the file calls it.
void setType(fz_context *context, pdf_obj *object, pdf_obj *type)
{
    if (!pdf_name_eq(context, pdf_dict_get(context, object, PDF_NAME(Type)), type))
        pdf_dict_put(context, object, PDF_NAME(Type), type);
}

/// Two levels, so that the engine, which recurses, does not go deep, and neither of them long.
constexpr int pagesPerNode = 64;

/// The file's own root, to which its pages lead back; a new one if that is itself a page.
pdf_obj *newRoot(fz_context *context, pdf_document *document)
{
    pdf_obj *catalog = pdf_dict_get(context, pdf_trailer(context, document), PDF_NAME(Root));
    pdf_obj *root = pdf_dict_get(context, catalog, PDF_NAME(Pages));
    const bool hasKids = pdf_is_array(context, pdf_dict_get(context, root, PDF_NAME(Kids)));
    return hasKids ? root : pdf_dict_put_dict(context, catalog, PDF_NAME(Pages), 3);
}

bool rebuild(const MuPDFSession &session, const std::vector<pdf_obj *> &pages)
{
    pdf_obj *const *all = pages.data();
    const int count = static_cast<int>(pages.size());
    return session.run([=](fz_context *context, pdf_document *document) {
        pdf_obj *root = newRoot(context, document);
        pdf_obj *nodes = pdf_dict_put_array(context, root, PDF_NAME(Kids), count / pagesPerNode);
        setType(context, root, PDF_NAME(Pages));
        pdf_dict_put_int(context, root, PDF_NAME(Count), count);
        for (int first = 0; first < count; first += pagesPerNode) {
            const int taken = std::min(pagesPerNode, count - first);
            pdf_obj *node = pdf_array_push_dict(context, nodes, 3);
            pdf_obj *kids = pdf_dict_put_array(context, node, PDF_NAME(Kids), taken);
            setType(context, node, PDF_NAME(Pages));
            pdf_dict_put_int(context, node, PDF_NAME(Count), taken);
            // Only by reference: objects that hold each other would never be freed.
            if (pdf_is_indirect(context, root))
                pdf_dict_put(context, node, PDF_NAME(Parent), root);
            for (int index = 0; index < taken; ++index) {
                pdf_obj *page = all[first + index];
                setType(context, page, PDF_NAME(Page));
                // The engine knows pages by number; a page that stands inside its node has none.
                if (pdf_is_indirect(context, page))
                    pdf_array_push(context, kids, page);
                else
                    pdf_array_push_drop(context, kids, pdf_add_object(context, document, page));
            }
        }
    });
}

/// A page of a tree that was rebuilt.
pdf_obj *find(fz_context *context, pdf_document *document, int page)
{
    pdf_obj *catalog = pdf_dict_get(context, pdf_trailer(context, document), PDF_NAME(Root));
    pdf_obj *root = pdf_dict_get(context, catalog, PDF_NAME(Pages));
    pdf_obj *nodes = pdf_dict_get(context, root, PDF_NAME(Kids));
    pdf_obj *node = pdf_array_get(context, nodes, page / pagesPerNode);
    pdf_obj *kids = pdf_dict_get(context, node, PDF_NAME(Kids));
    return pdf_resolve_indirect_chain(context, pdf_array_get(context, kids, page % pagesPerNode));
}

Rect asRect(fz_rect rect)
{
    return Rect::fromCorners({rect.x0, rect.y0}, {rect.x1, rect.y1});
}

/// Boxes that a reader can't have meant: without extent, or beyond all paper.
bool isUsable(const Rect &box)
{
    constexpr double largest = 1e6;
    return box.size.width >= 1 && box.size.height >= 1 && box.size.width <= largest &&
           box.size.height <= largest && std::abs(box.origin.x) <= largest &&
           std::abs(box.origin.y) <= largest;
}

int quarterTurns(int degrees)
{
    return ((degrees / 90) % 4 + 4) % 4 * 90;
}

} // namespace

int repair(const MuPDFSession &session)
{
    int &repairAttempted = session.document()->repair_attempted;
    const int attemptedBefore = repairAttempted;
    Walk walk(session);
    walk.run(rootNode(session));
    if (repairAttempted != attemptedBefore)
        walk.run(rootNode(session));
    // From here on objects stay where they are, so that handles to them stay good.
    repairAttempted = 1;
    if (walk.pages().empty() || !rebuild(session, walk.pages()))
        return 0;
    // Lets the engine find each page by index at once, until the session ends.
    session.run(
        [](fz_context *context, pdf_document *document) { pdf_load_page_tree(context, document); });
    return static_cast<int>(walk.pages().size());
}

pdf_obj *pageObject(const MuPDFSession &session, int page)
{
    pdf_obj *object = nullptr;
    session.run([page, &object](fz_context *context, pdf_document *document) {
        object = find(context, document, page);
    });
    return object;
}

pdf_page *loadPage(fz_context *context, pdf_document *document, int page)
{
    pdf_obj *object = find(context, document, page);
    const int before = pdf_obj_refs(context, object);
    pdf_page *loaded = nullptr;
    fz_var(loaded);
    fz_try(context) loaded = pdf_load_page(context, document, page);
    fz_always(context)
    {
        // A page keeps its object once; version 1.21 of the engine keeps it once more, for nobody.
        if (pdf_obj_refs(context, object) > before + (loaded ? 1 : 0))
            pdf_drop_obj(context, object);
    }
    fz_catch(context) fz_rethrow(context);
    return loaded;
}

std::optional<PageGeometry> geometry(const MuPDFSession &session, int page)
{
    pdf_obj *object = pageObject(session, page);
    fz_rect media = fz_empty_rect;
    fz_rect crop = fz_empty_rect;
    int rotation = 0;
    const bool isRead = object && session.run([=, &media, &crop, &rotation](fz_context *context,
                                                                            pdf_document *) {
        media = pdf_to_rect(context, pdf_dict_get_inheritable(context, object, PDF_NAME(MediaBox)));
        crop = pdf_to_rect(context, pdf_dict_get_inheritable(context, object, PDF_NAME(CropBox)));
        rotation = pdf_to_int(context, pdf_dict_get_inheritable(context, object, PDF_NAME(Rotate)));
    });
    if (!isRead)
        return std::nullopt;
    PageGeometry result;
    result.mediaBox = isUsable(asRect(media)) ? asRect(media) : defaultBox;
    const Rect inside = asRect(crop).intersection(result.mediaBox);
    result.cropBox = isUsable(inside) ? inside : result.mediaBox;
    result.rotation = quarterTurns(rotation);
    return result;
}

} // namespace Tavrin::MuPDFPageTree
