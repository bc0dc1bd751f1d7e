// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/// Files that a broken producer or an attacker would send.
namespace Tavrin::Testing::HostilePDF
{

/// A page tree whose only node is its own child.
QByteArray cyclicPageTree();
/// A page tree that says it holds two billion pages, and holds one.
QByteArray hugePageCount();
/// A document whose page tree is empty.
QByteArray withoutPages();
/// A page tree of one page, below this many nodes.
QByteArray deepPageTree(int depth);
/// Two pages, "first" and "second", below nodes that count 5 and 0; the root's count is right.
QByteArray wrongInnerPageCounts();
/// Two pages, of which the first stands inside the page tree, and shows "first".
QByteArray inlinePage();
/// A page tree whose root is a stream, as in a file whose objects ran into each other.
QByteArray streamForPages();
/// A document whose pages are lost with its catalog, when the engine repairs it for one of them.
QByteArray catalogLostInRepair();

/// A name tree whose root is its own child, beside a leaf with the name "here".
QByteArray cyclicNameTree();

/// An outline with two items, "one" and "two", each following the other.
QByteArray outlineLoop();
/// An outline with an item that is its own first child.
QByteArray outlineChildLoop();
/// An outline that goes down one item a level; titles count from 0.
QByteArray deepOutline(int depth);

/// A good document of one page that ends in the middle of its objects.
QByteArray truncated();

} // namespace Tavrin::Testing::HostilePDF
