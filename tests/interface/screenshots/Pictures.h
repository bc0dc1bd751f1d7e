// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace Tavrin::Testing
{

class Studio;

void takeAuditPictures(Studio &studio);
void takeCitingPictures(Studio &studio);
void takeDetailPictures(Studio &studio);
void takeFilesPictures(Studio &studio);
void takeReaderPictures(Studio &studio);
void takeSidebarPictures(Studio &studio);
void takeSummaryPictures(Studio &studio);
void takeViewerPictures(Studio &studio);

} // namespace Tavrin::Testing
