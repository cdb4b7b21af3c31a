// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/InteractionManager.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGNode.h>

#include <string>
#include <vector>

/// A program that a page of the manual shows, as a function.
struct DocSnippet
{
    std::string name;  ///< page and number
    void (*run)(nbOSGWidget& view, nbec::interaction::InteractionManager& manager,
                const osg::NodePtr& node, const osg::UberMaterialPtr& material,
                const osg::ImagePtr& image);
};

/// All of them, in the order of the pages; made from these.
const std::vector<DocSnippet>& docSnippets();
