# Mistakes in what views become on a Mac.
#
# kestrune_hosting_mutant(NAME FILE TEST FROM TO): in a file of mac/hosting, and found by a test of what is
# hosted.
function(kestrune_hosting_mutant name file test from to)
    kestrune_mutant(${name} FILE mac/hosting/${file}.cpp TEST Hosted${test} FROM "${from}" TO "${to}"
        DRIVER window_tests_gnustep_driver kestrune_harness kestrune_standins)
endfunction()

# kestrune_weight_mutant(NAME FROM TO): the number of another weight in the place of one.
function(kestrune_weight_mutant name from to)
    kestrune_hosting_mutant(${name} Fonts TextOnGNUstep.HasThePlatformsNumberForEveryWeight
        "return ${from};" "return ${to};")
endfunction()
kestrune_weight_mutant(UltraLightIsThin -0.8 -0.6)
kestrune_weight_mutant(ThinIsLight -0.6 -0.4)
kestrune_weight_mutant(LightIsRegular -0.4 0)
kestrune_weight_mutant(MediumIsSemibold 0.23 0.3)
kestrune_weight_mutant(SemiboldIsBold 0.3 0.4)
kestrune_weight_mutant(BoldIsSemibold 0.4 0.3)
kestrune_weight_mutant(HeavyIsBlack 0.56 0.62)
kestrune_weight_mutant(BlackIsHeavy 0.62 0.56)
kestrune_weight_mutant(RegularIsMedium 0 0.23)
kestrune_hosting_mutant(EveryRunHasTheWeightOfTheText AttributedText
    TextOnGNUstep.SetsEachRunInItsWeightAndTheSizeOfTheText
    "run.weight" "text.font.weight")
kestrune_hosting_mutant(EveryTextHasTheSizeOfTheBody Fonts
    TextOnGNUstep.SetsEachRunInItsWeightAndTheSizeOfTheText
    "font.size," "13,")

# kestrune_alignment_mutant(NAME FROM TO)
function(kestrune_alignment_mutant name from to)
    kestrune_hosting_mutant(${name} AttributedText TextOnGNUstep.AlignsParagraphsAsTheTextIs
        "return ${from};" "return ${to};")
endfunction()
kestrune_alignment_mutant(CentredIsTrailing "isApples ? 1 : 2" "isApples ? 2 : 1")
kestrune_alignment_mutant(TrailingIsCentred "isApples ? 2 : 1" "isApples ? 1 : 2")
kestrune_alignment_mutant(LeadingIsCentred 0 2)
kestrune_hosting_mutant(CentredIsTheSameOnApplesProcessors AttributedText
    TextOnGNUstep.HasThePlatformsNumberForEveryAlignmentOnEitherProcessor "isApples ? 1 : 2" "2")
kestrune_hosting_mutant(ParagraphsHaveNoStyle AttributedText TextOnGNUstep.AlignsParagraphsAsTheTextIs
    "        set(attributes, NSParagraphStyleAttributeName, style.get());
" "")
kestrune_hosting_mutant(TextIsAlwaysOpaque AttributedText
    TextOnGNUstep.ColoursEachRunLessOpaquelyWhereItIsSaid
    "colorWithOpacity(text.color, opacity)" "colorWithOpacity(text.color, 1)")
kestrune_hosting_mutant(TextIsAlwaysPrimary AttributedText
    TextOnGNUstep.ColoursEachRunLessOpaquelyWhereItIsSaid
    "colorWithOpacity(text.color, opacity)" "colorWithOpacity(ui::Color::primary, opacity)")

# kestrune_label_mutant(NAME TEST FROM TO)
function(kestrune_label_mutant name test from to)
    kestrune_hosting_mutant(${name} Label TextOnGNUstep.ShowsALabel${test} "${from}" "${to}")
endfunction()
kestrune_label_mutant(LabelIsSelectable ThatNobodyCanEditOrSelect
    "setSelectable(view(), truth(false))" "setSelectable(view(), truth(true))")
kestrune_label_mutant(LabelHasABezel WithoutBezelAndBackground
    "setBezeled(view(), truth(false))" "setBezeled(view(), truth(true))")
kestrune_label_mutant(LabelHasABackground WithoutBezelAndBackground
    "setDrawsBackground(view(), truth(false))" "setDrawsBackground(view(), truth(true))")
kestrune_label_mutant(LabelDoesNotWrap WithoutBezelAndBackground
    "appKit.control.cell(view()), truth(true)" "appKit.control.cell(view()), truth(false)")
kestrune_label_mutant(LabelHasNoInset WhoseTextLiesInItsFrame "Inset = 2;" "Inset = 0;")
kestrune_label_mutant(LabelHasAnInsetAtTheLeftAlone WhoseTextLiesInItsFrame "+ 2 * Inset" "+ Inset")

# kestrune_size_mutant(NAME FROM TO)
function(kestrune_size_mutant name from to)
    kestrune_hosting_mutant(${name} Controls ControlsOnGNUstep.HaveThePlatformsNumberForEverySize
        "return ${from};" "return ${to};")
endfunction()
kestrune_size_mutant(MiniIsSmall 2 1)
kestrune_size_mutant(SmallIsMini 1 2)
kestrune_size_mutant(LargeIsRegular 3 0)
kestrune_size_mutant(RegularIsLarge 0 3)
kestrune_hosting_mutant(ButtonIsShownInTheRegularSize Buttons
    ControlsOnGNUstep.HaveThePlatformsNumberForEverySize
    "setButtonSize(view(), next.size)" "setButtonSize(view(), ui::ControlSize::regular)")
kestrune_hosting_mutant(SwitchIsShownInTheRegularSize SwitchView
    ControlsOnGNUstep.HaveThePlatformsNumberForEverySize "platformSize(next.size)" "0")
kestrune_hosting_mutant(ButtonsHaveTheRegularFont Controls
    ControlsOnGNUstep.SetATitleInTheFontOfTheirSize
    "systemFontSizeForControlSize(platformSize(size))" "systemFontSizeForControlSize(0)")
kestrune_hosting_mutant(ButtonIsMeasuredInTheRegularSize PlatformMeasurer
    ControlsOnGNUstep.AreMeasuredInTheirSize
    "setButtonSize(button.get(), size)" "setButtonSize(button.get(), ui::ControlSize::regular)")
kestrune_hosting_mutant(SwitchIsMeasuredInTheRegularSize PlatformMeasurer
    ControlsOnGNUstep.AreMeasuredInTheirSize "platformSize(size)" "0")

# kestrune_button_mutant(NAME FILE TEST FROM TO)
function(kestrune_button_mutant name file test from to)
    kestrune_hosting_mutant(${name} ${file} ControlsOnGNUstep.${test} "${from}" "${to}")
endfunction()
kestrune_button_mutant(NoRoleIsDestructive Buttons AreDestructiveInThatRoleAlone
    "next.role == ui::ButtonRole::destructive" "false")
kestrune_button_mutant(EveryRoleIsDestructive Buttons AreDestructiveInThatRoleAlone
    "next.role == ui::ButtonRole::destructive" "next.role != ui::ButtonRole::none")
kestrune_button_mutant(CancelIsReturn Buttons HaveTheKeyOfTheirShortcut "\\x1b" "\\r")
kestrune_button_mutant(TheDefaultIsEscape Buttons HaveTheKeyOfTheirShortcut "\\r" "\\x1b")
kestrune_button_mutant(NoShortcutIsReturn Buttons HaveTheKeyOfTheirShortcut
    "return \"\";" "return \"\\r\";")
kestrune_button_mutant(BezelIsRound Controls DrawABorderedButtonWithThePlatformsBezel
    "Push = 1;" "Push = 2;")
kestrune_button_mutant(DrawnButtonHasABorder Buttons DrawNoBorderAroundAButtonThatBringsItsLook
    "setBordered(view(), truth(false))" "setBordered(view(), truth(true))")
kestrune_button_mutant(DrawnButtonStaysPressed Buttons AreButtonsThatGoBackWhenTheyAreLetGo
    "setButtonType(view(), MomentaryPushIn)" "setButtonType(view(), 1)")
kestrune_button_mutant(BorderedButtonStaysPressed Controls AreButtonsThatGoBackWhenTheyAreLetGo
    "setButtonType(button, MomentaryPushIn)" "setButtonType(button, 1)")
kestrune_button_mutant(DrawnButtonIsThePictureOfALayer Buttons
    DrawNoBorderAroundAButtonThatBringsItsLook
    "wantsUpdateLayer(id, SEL) noexcept { return truth(false); }"
    "wantsUpdateLayer(id, SEL) noexcept { return truth(true); }")
kestrune_button_mutant(SwitchIsOnWhenItIsOff SwitchView AreFlippedWhereTheyAreEnabled "? 1 : 0" "? 0 : 1")
kestrune_button_mutant(SwitchIsDisabled SwitchView AreFlippedWhereTheyAreEnabled
    "setEnabled(view(), truth(true))" "setEnabled(view(), truth(false))")

# kestrune_picture_mutant(NAME FILE TEST FROM TO)
function(kestrune_picture_mutant name file test from to)
    kestrune_hosting_mutant(${name} ${file} PicturesOnGNUstep.${test} "${from}" "${to}")
endfunction()
set(SYMBOL_IS_SHOWN ShowASymbolInItsFontScaleAndTint)
kestrune_picture_mutant(EverySymbolIsACheckMark Symbols ${SYMBOL_IS_SHOWN}
    "nsString(symbol.name)" "nsString(\"checkmark.circle.fill\")")
kestrune_picture_mutant(SmallScaleIsMedium Symbols ${SYMBOL_IS_SHOWN} "return 1;" "return 2;")
kestrune_picture_mutant(LargeScaleIsMedium Symbols ${SYMBOL_IS_SHOWN} "return 3;" "return 2;")
kestrune_picture_mutant(MediumScaleIsLarge Symbols ${SYMBOL_IS_SHOWN} "return 2;" "return 3;")
kestrune_picture_mutant(SymbolIsAlwaysRegular Symbols ${SYMBOL_IS_SHOWN}
    "platformWeight(symbol.font.weight)" "0")
kestrune_picture_mutant(SymbolHasTheSizeOfTheBody Symbols ${SYMBOL_IS_SHOWN} "symbol.font.size" "13")
kestrune_picture_mutant(SymbolHasNoTint SymbolView ${SYMBOL_IS_SHOWN}
    "            appKit.imageView.setContentTintColor(view(), platformColor(next.symbol.color));
" "")
kestrune_picture_mutant(SymbolHasTheTintOfText SymbolView ${SYMBOL_IS_SHOWN}
    "platformColor(next.symbol.color)" "platformColor(ui::Color::primary)")
kestrune_picture_mutant(SymbolIsScaled SymbolView LeaveASymbolItsSizeInItsFrame
    "ScaleNone = 2;" "ScaleNone = 3;")
kestrune_picture_mutant(SymbolIsDrawnAtTheLeft Symbols DrawASymbolInTheMiddleOfItsPlaceInAButton
    "frame.origin.x + (frame.size.width - size.width) / 2" "frame.origin.x")
kestrune_picture_mutant(SymbolIsDrawnAtTheTop Symbols DrawASymbolInTheMiddleOfItsPlaceInAButton
    "frame.origin.y + (frame.size.height - size.height) / 2" "frame.origin.y")
kestrune_picture_mutant(SymbolIsDrawnInTheColourOfText Symbols DrawASymbolInItsColourInAButton
    "platformColor(symbol.color)" "platformColor(ui::Color::primary)")
kestrune_picture_mutant(SymbolIsDrawnWithoutItsColour Symbols DrawASymbolInItsColourInAButton
    "    NSRectFillUsingOperation(all, SourceAtop);
" "")
kestrune_picture_mutant(TintFillsTheWholePlace Symbols DrawASymbolInItsColourInAButton
    "SourceAtop = 5;" "SourceAtop = 2;")
kestrune_picture_mutant(MaskHasSharpCorners Drawing FillAShapeAtItsPlaceWithRoundCorners
    "    moved.frame = movedBy(shape.frame, origin);
" "    moved.frame = movedBy(shape.frame, origin);
    moved.cornerRadius = 0;
")
kestrune_picture_mutant(ShapeIsAlwaysPrimary Drawing FillAShapeAtItsPlaceWithRoundCorners
    "colorWithOpacity(element.fill," "colorWithOpacity(ui::Color::primary,")
kestrune_picture_mutant(PressedLinkHasTheOpacityOfAButton Buttons
    DrawAShapeOfALinkAsTransparentAsBothSay "PressedLinkOpacity = 0.55" "PressedLinkOpacity = 0.75")
kestrune_picture_mutant(FocusRingIsNeverTheShape Buttons DrawTheFocusRingAroundTheShapeOfAButton
    "shape != body.end()" "false")
kestrune_picture_mutant(FocusRingNeedsAShape Buttons DrawTheFocusRingAroundAllOfAButtonWithoutAShape
    "        whole.frame = self->shown()->frame;
" "")
kestrune_picture_mutant(FocusRingHasNoBounds Buttons DrawTheFocusRingAroundTheShapeOfAButton
    "            type.addMethod(appKit.view.focusRingMaskBounds, focusRingMaskBounds);
" "")
kestrune_picture_mutant(ButtonIsNotDrawnAgain Buttons DrawAButtonAgainWhenWhatItShowsIsAnother
    "appKit.view.setNeedsDisplay(view(), truth(true));" "")

# kestrune_shape_mutant(NAME FILE TEST FROM TO): found by the pixels that a window shows.
function(kestrune_shape_mutant name file test from to)
    kestrune_mutant(${name} FILE ${file}.cpp TEST ShapesContract.${test} FROM "${from}" TO "${to}"
        DRIVER contract_tests_gnustep_driver kestrune_contract kestrune_harness kestrune_standins)
endfunction()
kestrune_shape_mutant(EveryCornerIsContinuous ui/Outline HaveCircularCorners
    "shape.cornerStyle == CornerStyle::continuous" "true")
kestrune_shape_mutant(NoCornerIsContinuous ui/Outline HaveContinuousCorners
    "shape.cornerStyle == CornerStyle::continuous" "false")
kestrune_shape_mutant(CornersAreStraight mac/hosting/Drawing HaveCircularCorners
    "        appKit.bezierPath.curveToPoint(path, side.curveEnd, side.firstControl, side.secondControl);
" "        appKit.bezierPath.lineToPoint(path, side.curveEnd);
")
kestrune_shape_mutant(EdgesAreFilled mac/hosting/Drawing DrawALineAlongTheInsideOfTheirEdge
    "appKit.bezierPath.stroke(path)" "appKit.bezierPath.fill(path)")
kestrune_shape_mutant(EveryLineIsAPointWide mac/hosting/Drawing DrawALineAlongTheInsideOfTheirEdge
    "            appKit.bezierPath.setLineWidth(path, element.lineWidth);
" "")
kestrune_shape_mutant(OpacityIsInsteadOfTheColoursOwn mac/hosting/Colors LetThroughWhatIsBehindThem
    "appKit.color.alphaComponent(opaque) * opacity" "opacity")

kestrune_mutant(TheNewestNameIsTheOnlyOne FILE mac/hosting/Colors.cpp
    DRIVER selfcheck_tests_gnustep_driver kestrune_harness kestrune_standins
    TEST SystemColors.AreOlderOnesWhereTheSystemHasNoNewer
    FROM "name != names.end() ? *name : names.front()" TO "names.front()")

# kestrune_inline_mutant(NAME LIBRARY FILE COMPILES TEST FROM TO): in a header of a library whose constants
# are one object, whoever includes it, so that a wrong one has a program of its own: that test alone.
function(kestrune_inline_mutant name library file compiles test from to)
    kestrune_mutant(${name} FILE ${file} COMPILES ${compiles} TEST ${test} FROM "${from}" TO "${to}"
        DRIVER ${library} kestrune_options GTest::gtest_main)
endfunction()
kestrune_inline_mutant(LinesOfTextHaveNoLeading kestrune_mac
    mac/hosting/AttributedText.h tests/gnustep/suites/NumbersTest.cpp
    NumbersOfThePlatform.AreThoseOfItsHeaders
    "TextLayoutOptions = 1 | 2" "TextLayoutOptions = 1")

# kestrune_color_mutant(NAME COLOR OTHER): another of the system's colours in the place of one.
function(kestrune_color_mutant name color other)
    kestrune_inline_mutant(${name} kestrune_ui ui/SystemColor.h tests/ui/SystemColorTest.cpp
        SystemColors.AreInTheOrderOfTheEnumerators "{{\"${color}\"" "{{\"${other}\"")
endfunction()
kestrune_color_mutant(PrimaryIsSecondary labelColor secondaryLabelColor)
kestrune_color_mutant(SecondaryIsTertiary secondaryLabelColor tertiaryLabelColor)
kestrune_color_mutant(TertiaryIsQuaternary tertiaryLabelColor quaternaryLabelColor)
kestrune_color_mutant(AccentIsTheLinks controlAccentColor linkColor)
kestrune_color_mutant(GreenIsTheLinks systemGreenColor linkColor)
kestrune_color_mutant(WhiteIsPrimary whiteColor labelColor)
kestrune_color_mutant(LinksAreTheAccent linkColor controlAccentColor)
kestrune_color_mutant(FillOfSectionsIsTheBorders quinarySystemFillColor quaternarySystemFillColor)
kestrune_color_mutant(BorderOfSectionsIsTheFills quaternarySystemFillColor quinarySystemFillColor)
kestrune_color_mutant(SeparatorIsTheBorder separatorColor quaternarySystemFillColor)
kestrune_inline_mutant(OlderSystemsHaveNoBorder kestrune_ui ui/SystemColor.h tests/ui/SystemColorTest.cpp
    SystemColors.HaveNamesOfTheirOwnOfWhichOneIsOnEverySystem
    "{{\"quaternarySystemFillColor\", \"quaternaryLabelColor\"}" "{{\"quaternarySystemFillColor\"}")

# kestrune_accessibility_mutant(NAME FILE FROM TO): in what VoiceOver is told.
function(kestrune_accessibility_mutant name file from to)
    kestrune_mutant(${name} FILE mac/hosting/${file}.cpp FROM "${from}" TO "${to}"
        TEST HostingContract.TellsVoiceOverWhatToReadAndWhatToPassOver
        DRIVER contract_tests_gnustep_driver kestrune_contract kestrune_harness kestrune_standins)
endfunction()
kestrune_accessibility_mutant(CellIsReadOutAnyway Accessibility
    "    appKit.cell.setAccessibilityElement(cellOf(view), truth(isElement));
" "")
kestrune_accessibility_mutant(CellHasNoLabel Accessibility
    "    appKit.cell.setAccessibilityLabel(cellOf(view), text.get());
" "")
kestrune_accessibility_mutant(HiddenTextIsReadOut Label "!next.isAccessibilityHidden" "true")
kestrune_accessibility_mutant(SymbolIsReadOut SymbolView
    "setAccessibilityElement(view(), false)" "setAccessibilityElement(view(), true)")
kestrune_accessibility_mutant(ShapeIsReadOut ShapeView
    "setAccessibilityElement(view(), false)" "setAccessibilityElement(view(), true)")
kestrune_hosting_mutant(ViewIsReadOutAnyway Accessibility ControlsOnGNUstep.AreReadOutAsIsSaidOfTheView
    "    appKit.view.setAccessibilityElement(view, truth(isElement));
" "")
kestrune_hosting_mutant(ViewHasNoLabel Accessibility ControlsOnGNUstep.AreReadOutAsIsSaidOfTheView
    "    appKit.view.setAccessibilityLabel(view, text.get());
" "")
