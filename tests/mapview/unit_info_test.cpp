#include "mapview/unit_info.h"

#include "core/trap.h"
#include "tests/support/map_test.h"

namespace {

using Rows = std::vector<std::string>;

class UnitInfo : public MapTest {
  protected:
    UnitInfo() {
        auto entry = std::make_shared<oForceElements>();
        entry->ID = 1;
        entry->description = "Rifle squad";
        campaign.colForceElements->add(entry, " 1");
        auto gun = std::make_shared<oForceElements>();
        gun->ID = 2;
        gun->description = "Howitzer";
        gun->force_type = 4;
        gun->firefan = true;
        campaign.colForceElements->add(gun, " 2");
        unit = add_marked("{1}", 225, 102);
        unit->nationality = "Soviet";
        unit->unittype = "Rifle";
        unit->name = "1st";
        unit->supply_req = 5;
        unit->current_supply = 4;
        unit->op_status = "Attacking";
        unit->fitness = "90 %";
        unit->order_id = "Line unit";
    }

    std::shared_ptr<oUnits> add_below(const std::string& id, oUnits& hq) {
        auto made = add_marked(id, 500, 500);
        made->parent_ID = hq.ID;
        add_child(hq, id);
        return made;
    }

    static std::string key(char letter) { return "{" + std::string(36, letter) + "}"; }

    std::shared_ptr<oUnitForceElements> add_element(oUnits& to, int index, int quantity, char letter,
                                                    int missing = 0, int killed = 0) {
        auto element = std::make_shared<oUnitForceElements>();
        element->ID = key(letter);
        element->Index = static_cast<std::int16_t>(index);
        element->quantity = static_cast<std::int16_t>(quantity);
        element->experience = "Regular";
        element->MIA = static_cast<std::int16_t>(missing);
        element->KIA = static_cast<std::int16_t>(killed);
        element->free_text = "Partisans";
        to.force_elements->add(element, element->ID);
        return element;
    }

    std::shared_ptr<oUnits> unit;
};

} // namespace

TEST_F(UnitInfo, ShowsIdentitySupplyAndPlaceAndKeepsTheUnitsOwn) {
    main.lstUIfe.rows = {"old"};
    main.cmdEditFE.enabled = main.cmdSetFirefan.enabled = true;
    main.cmdTransferFE.enabled = main.cmdDeleteFE.enabled = true;
    campaign.curUFE = std::make_shared<oUnitForceElements>();
    show_unit_info(program, "{1}");
    EXPECT_EQ(main.lblUIunitname.caption, "Soviet 1st Rifle");
    EXPECT_EQ(main.lblUIparentname.caption, "");
    EXPECT_EQ(main.lblUISupplyReq.caption, "5");
    EXPECT_EQ(main.lblUICurrSupply.caption, "4");
    EXPECT_EQ(main.lblUIOpStatus.caption, "Attacking");
    EXPECT_EQ(main.lblUIFitness.caption, "90 %");
    EXPECT_EQ(main.lblUIUnitStatus.caption, "Line unit");
    EXPECT_EQ(main.lblUIeastcoord.caption, "01.50");
    EXPECT_EQ(main.lblUInorthcoord.caption, "40.00");
    EXPECT_EQ(unit->ycoord, 102);
    EXPECT_TRUE(main.lstUIfe.rows.empty());
    EXPECT_FALSE(main.cmdEditFE.enabled || main.cmdSetFirefan.enabled || main.cmdTransferFE.enabled ||
                 main.cmdDeleteFE.enabled);
    EXPECT_EQ(campaign.curUFE, nullptr);
    EXPECT_EQ(campaign.curUnit, unit);
    EXPECT_TRUE(main.picUnitInfo.visible && main.picMap.marked);
}

TEST_F(UnitInfo, SubordinatesAreListedDepthFirstToTenLevels) {
    auto last = unit;
    for (int i = 0; i < 13; ++i) {
        last = add_below("{" + std::string(36, static_cast<char>('a' + i)) + "}", *last);
        last->name = std::to_string(i);
        last->supply_req = 1;
    }
    show_unit_info(program, "{1}");
    const std::vector<std::size_t> indents{0, 3, 7, 11, 15, 19, 23, 27, 31, 35};
    ASSERT_EQ(main.lstUIchildunits.rows.size(), 10U);
    for (std::size_t i = 0; i < 10; ++i)
        EXPECT_EQ(main.lstUIchildunits.rows[i], std::string(indents[i], ' ') + std::to_string(i) + " " +
                                                    std::string(150, ' ') + "###" +
                                                    key(static_cast<char>('a' + i)));
    EXPECT_EQ(main.lblUIAccSupplyReq.caption, "15");
    EXPECT_EQ(main.lblUIAccCurrSupply.caption, "4");
}

TEST_F(UnitInfo, MissingOrRepeatedSubordinateIsTold) {
    add_child(*unit, "{gone}");
    show_unit_info(program, "{1}");
    unit->children.drop();
    add_child(*unit, "{1}");
    show_unit_info(program, "{1}");
    EXPECT_EQ(platform.texts(),
              (Rows{"Error 5 when displaying unit info.", "Error 457 when displaying unit info."}));
}

TEST_F(UnitInfo, ElementRowsHaveDescriptionQuantityAndCasualties) {
    add_element(*unit, 1, 5, 'A');
    add_element(*unit, 1, 12, 'B', 1, 2);
    add_element(*unit, 1, 100, 'C', 3, 0);
    add_element(*unit, 999, 1, 'D', 0, 4);
    show_unit_info(program, "{1}");
    const std::string blanks(222, ' ');
    EXPECT_EQ(main.lstUIfe.rows,
              (Rows{"Rifle squad x 005, Regular ,ammo = 0" + blanks + key('A'),
                    "Rifle squad x 012, Regular ,ammo = 0, casulties = 1 MIA, 2 KIA" + blanks + key('B'),
                    "Rifle squad x 100, Regular ,ammo = 0, casulties = 3 MIA" + blanks + key('C'),
                    "Partisans x 001, Regular ,ammo = 0, casulties = 4 KIA" + blanks + key('D')}));
    EXPECT_EQ(main.lblUIMIA.caption, "4");
    EXPECT_EQ(main.lblUIKIA.caption, "6");
}

TEST_F(UnitInfo, AccumulatedRowsAddUpWhatIsBelowByKindAndExperience) {
    const auto a = add_below("{a}", *unit);
    const auto b = add_below("{b}", *unit);
    add_element(*unit, 1, 50, 'A', 1, 1);
    add_element(*a, 1, 7, 'B', 2, 0);
    add_element(*b, 1, 9, 'C', 0, 3);
    add_element(*b, 1, 1, 'D')->experience = "Green";
    add_element(*b, 999, 6, 'E');
    main.chkShowAllFE.value = true;
    show_unit_info(program, "{1}");
    ASSERT_EQ(main.lstUIfe.rows.size(), 4U);
    EXPECT_EQ(main.lstUIfe.rows[1], "Rifle squad x 016, Regular ,ammo = 0, casulties = 2 MIA, 3 KIA");
    EXPECT_EQ(main.lstUIfe.rows[2], "Rifle squad x 001, Green ,ammo = 0");
    EXPECT_EQ(main.lstUIfe.rows[3], " x 006, Regular ,ammo = 0");
    EXPECT_EQ(main.lblUIAccMIA.caption, "3");
    EXPECT_EQ(main.lblUIAccKIA.caption, "4");
}

TEST_F(UnitInfo, SumsBeyondSixteenBitsAreTold) {
    const auto a = add_below("{a}", *unit);
    add_element(*a, 1, 1, 'A')->ammo = 30000;
    add_element(*a, 1, 1, 'B')->ammo = 30000;
    show_unit_info(program, "{1}");
    EXPECT_EQ(platform.texts(), Rows{"Error 6 when displaying unit info."});
}

TEST_F(UnitInfo, StateColours) {
    const std::vector<std::pair<int, std::int32_t>> colours{
        {0, colour::button_face}, {1, 0xFF00}, {2, 0xFFFF}, {3, 255}, {4, 0}, {9, 0}};
    for (const auto& [state, expected] : colours) {
        unit->state = static_cast<std::int16_t>(state);
        show_unit_info(program, "{1}");
        EXPECT_EQ(main.picUnitState.back_colour, expected) << state;
    }
}

TEST_F(UnitInfo, WaypointButtonsNeedWaypoints) {
    show_unit_info(program, "{1}");
    EXPECT_FALSE(main.cmdEditWaypt.enabled || main.cmdMoveWaypt.enabled || main.cmdClearWaypt.enabled);
    unit->waypoints->add(std::make_shared<oWaypoint>(), "{W}");
    show_unit_info(program, "{1}");
    EXPECT_TRUE(main.cmdEditWaypt.enabled && main.cmdMoveWaypt.enabled && main.cmdClearWaypt.enabled);
    add_marked("{without}", 10, 10);
    show_unit_info(program, "{without}");
    EXPECT_FALSE(main.cmdEditWaypt.enabled || main.cmdMoveWaypt.enabled || main.cmdClearWaypt.enabled);
}

TEST_F(UnitInfo, ElementThatIsGoneIsTold) {
    add_element(*unit, 1, 5, 'A');
    show_unit_info(program, "{1}");
    unit->force_elements.drop();
    main.lstUIfe.selected = 0;
    lstUIfe_Click(program);
    EXPECT_EQ(platform.texts(), Rows{"Error 5 when displaying unit info."});
}

TEST_F(UnitInfo, PlaceBeyondTheGridKeepsTheSuppliesOfTheUnitBefore) {
    const auto before = add_marked("{before}", 10, 10);
    before->supply_req = 70;
    before->current_supply = 60;
    show_unit_info(program, "{before}");
    add_element(*unit, 1, 5, 'A', 3, 4);
    unit->ycoord = 32767;
    show_unit_info(program, "{1}");
    EXPECT_EQ(platform.texts(), Rows{"Error 6 when displaying unit info."});
    EXPECT_EQ(main.lblUIAccMIA.caption, "3");
    EXPECT_EQ(main.lblUIAccSupplyReq.caption, "70");
    EXPECT_EQ(main.lblUIAccCurrSupply.caption, "60");
    EXPECT_EQ(campaign.curUnit, before);
}

TEST_F(UnitInfo, ClickOnAnElementTakesItInHand) {
    const auto squad = add_element(*unit, 1, 5, 'A');
    const auto gun = add_element(*unit, 2, 1, 'B');
    gun->FireFanAngle = 77;
    show_unit_info(program, "{1}");
    main.lstUIfe.selected = 0;
    lstUIfe_Click(program);
    EXPECT_EQ(campaign.curUFE, squad);
    EXPECT_TRUE(main.cmdTransferFE.enabled && main.cmdEditFE.enabled && main.cmdDeleteFE.enabled);
    EXPECT_FALSE(main.cmdSetFirefan.enabled);
    EXPECT_EQ(main.lblUIFFangle.caption, "");
    main.lstUIfe.selected = 1;
    lstUIfe_Click(program);
    EXPECT_EQ(campaign.curUFE, gun);
    EXPECT_TRUE(main.cmdSetFirefan.enabled);
    EXPECT_EQ(main.lblUIFFangle.caption, "77");
}

TEST_F(UnitInfo, WithAccumulatedRowsTheButtonsStayOffAndSuchARowKeepsTheElement) {
    const auto own = add_element(*unit, 1, 5, 'A');
    add_element(*add_below("{a}", *unit), 1, 7, 'B');
    main.chkShowAllFE.value = true;
    show_unit_info(program, "{1}");
    main.lstUIfe.selected = 0;
    lstUIfe_Click(program);
    EXPECT_EQ(campaign.curUFE, own);
    main.lstUIfe.selected = 1;
    lstUIfe_Click(program);
    EXPECT_EQ(campaign.curUFE, own);
    EXPECT_FALSE(main.cmdTransferFE.enabled || main.cmdEditFE.enabled || main.cmdDeleteFE.enabled);
}

TEST_F(UnitInfo, SubordinateAndHqCanBeSelectedWithoutScrolling) {
    const auto below = add_below(key('a'), *unit);
    press_unit(*unit);
    main.lstUIchildunits.selected = 0;
    lstUIchildunits_DblClick(program);
    EXPECT_EQ(campaign.curUnit, below);
    EXPECT_EQ(marker(*below).border_style, 1);
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(main.scrlHMap.value, 0);
    unit->xcoord = 3000;
    unit->ycoord = 4000;
    cmdSelectHQ_Click(program);
    EXPECT_EQ(campaign.curUnit, unit);
    EXPECT_EQ(main.scrlHMap.value, 0);
    EXPECT_EQ(main.scrlVMap.value, 0);
    cmdSelectHQ_Click(program);
    EXPECT_EQ(campaign.curUnit, unit) << "it has none";
}

TEST_F(UnitInfo, SelectionFromThePanelShowsThePanelFirst) {
    const auto below = add_below(key('a'), *unit);
    add_child(*below, "{gone}");
    press_unit(*unit);
    main.lstUIchildunits.rows = {"below ###" + key('a')};
    main.lstUIchildunits.selected = 0;
    std::size_t selected_by_then = 9;
    platform.on_message = [&](const MessageBox&) { selected_by_then = selected(); };
    lstUIchildunits_DblClick(program);
    EXPECT_EQ(platform.texts().back(), "Error 5 when displaying unit info.");
    EXPECT_EQ(selected_by_then, 0U);
    EXPECT_EQ(selected(), 1U);
    EXPECT_EQ(marker(*below).border_style, 1);
}

TEST_F(UnitInfo, LocatingCentresSelectsAndShows) {
    const auto far = add_marked("{far}", 3000, 4000);
    press_unit(*unit);
    locate_unit(program, "{far}");
    EXPECT_EQ(main.scrlHMap.value, 3000 - 499);
    EXPECT_EQ(main.scrlVMap.value, 4000 - 444);
    EXPECT_TRUE(main.mnuUP_edit.enabled);
    EXPECT_EQ(campaign.curUnit, far);
    EXPECT_EQ(marker(*unit).border_style, 0);
    EXPECT_EQ(marker(*far).border_style, 1);
    EXPECT_EQ(selected(), 1U);
}

TEST_F(UnitInfo, UnitWithoutAMarkerIsShownWithoutAPictureAndCantBeLocated) {
    press_unit(*unit);
    marker(*unit).picture = 7;
    show_unit_info(program, unit->ID);
    EXPECT_EQ(main.imgUIunit, 7);
    const auto bare = add_unit("{bare}");
    bare->img_index = 900;
    show_unit_info(program, "{bare}");
    EXPECT_EQ(main.imgUIunit, 0);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(failure_of([&] { locate_unit(program, "{bare}"); }), failure::no_such_control);
    bare->img_index = unit->img_index; // taken by now
    show_unit_info(program, "{bare}");
    EXPECT_EQ(main.imgUIunit, 0);
    EXPECT_EQ(failure_of([&] { locate_unit(program, "{bare}"); }), failure::no_such_control);
    EXPECT_EQ(marker(*unit).border_style, 1) << "nothing has changed";
}

TEST_F(UnitInfo, ShowingAUnitEmptiesTheListOfSubordinates) {
    add_below(key('a'), *unit);
    press_unit(*unit);
    EXPECT_EQ(main.lstUIchildunits.rows.size(), 1U);
    unit->children.drop();
    show_unit_info(program, unit->ID);
    EXPECT_TRUE(main.lstUIchildunits.rows.empty());
}

TEST_F(UnitInfo, ChainOfCommandButtonToggles) {
    cmdHierarchy_Click(program);
    EXPECT_TRUE(main.hierarchy_on && main.cmdHierarchy.on() && main.picMap.marked);
    main.picMap.marked = false;
    cmdHierarchy_Click(program);
    EXPECT_FALSE(main.hierarchy_on || main.cmdHierarchy.on());
    EXPECT_TRUE(main.picMap.marked);
}

TEST_F(UnitInfo, QuantitiesBelowZeroGetNoughtsByValue) {
    add_element(*unit, 1, -5, 'A');
    add_element(*unit, 1, -15, 'B');
    show_unit_info(program, "{1}");
    EXPECT_TRUE(main.lstUIfe.rows[0].starts_with("Rifle squad x 00-5, "));
    EXPECT_TRUE(main.lstUIfe.rows[1].starts_with("Rifle squad x 00-15, "));
}

TEST_F(UnitInfo, FailureKeepsWhatWasFilledBefore) {
    const auto shown = add_marked("{shown}", 10, 10);
    show_unit_info(program, "{shown}");
    add_element(*unit, 1, 5, 'A');
    add_child(*unit, "{gone}");
    show_unit_info(program, "{1}");
    EXPECT_TRUE(main.lstUIfe.rows.empty()) << "subordinates come first";
    EXPECT_EQ(campaign.curUnit, shown);
    unit->children.drop();
    const auto below = add_below("{a}", *unit);
    add_below("{b}", *unit);
    add_element(*below, 1, 1, 'B')->ammo = 30000;
    add_element(*below, 1, 1, 'C')->ammo = 30000;
    show_unit_info(program, "{1}");
    EXPECT_EQ(main.lstUIchildunits.rows.size(), 2U) << "the list does not end at the sum that is too large";
    EXPECT_EQ(main.lstUIfe.rows.size(), 1U);
    EXPECT_EQ(platform.texts(),
              (Rows{"Error 5 when displaying unit info.", "Error 6 when displaying unit info."}));
}

TEST_F(UnitInfo, ElementThatTheCatalogueLacksIsToldWithTheSubordinatesShown) {
    add_below("{a}", *unit);
    add_element(*unit, 77, 1, 'A');
    show_unit_info(program, "{1}");
    EXPECT_EQ(platform.texts(), Rows{"Error 5 when displaying unit info."});
    EXPECT_EQ(main.lstUIchildunits.rows.size(), 1U);
}

TEST_F(UnitInfo, HqIsNamedInFull) {
    const auto below = add_below("{a}", *unit);
    show_unit_info(program, "{a}");
    EXPECT_EQ(main.lblUIparentname.caption, "Soviet 1st Rifle");
    EXPECT_EQ(main.imgUIunit, marker(*below).picture);
}

TEST_F(UnitInfo, AmmunitionAndSupplyAddUp) {
    const auto a = add_below("{a}", *unit);
    a->current_supply = 3;
    add_element(*unit, 1, 5, 'A')->ammo = 40;
    add_element(*a, 1, 5, 'B')->ammo = 50;
    add_element(*a, 1, 5, 'C')->ammo = 7;
    main.chkShowAllFE.value = true;
    show_unit_info(program, "{1}");
    EXPECT_TRUE(main.lstUIfe.rows[0].starts_with("Rifle squad x 005, Regular ,ammo = 40 "));
    EXPECT_EQ(main.lstUIfe.rows[1], "Rifle squad x 010, Regular ,ammo = 57");
    EXPECT_EQ(main.lblUIAccCurrSupply.caption, "7");
}

TEST_F(UnitInfo, AnotherClickOnAnElementShowsItsNewAngleAndRepaints) {
    const auto gun = add_element(*unit, 2, 1, 'B');
    add_element(*unit, 1, 1, 'C');
    show_unit_info(program, "{1}");
    main.lstUIfe.selected = 0;
    lstUIfe_Click(program);
    gun->FireFanAngle = 30;
    main.picMap.marked = false;
    lstUIfe_Click(program);
    EXPECT_EQ(main.lblUIFFangle.caption, "30");
    EXPECT_TRUE(main.picMap.marked);
    main.lstUIfe.selected = 1;
    lstUIfe_Click(program);
    EXPECT_FALSE(main.cmdSetFirefan.enabled) << "the next one has no fan";
}

TEST_F(UnitInfo, ElementWithoutAProperKeyStillEnablesItsButtons) {
    const auto element = std::make_shared<oUnitForceElements>();
    element->Index = 1;
    unit->force_elements->add(element, "odd");
    show_unit_info(program, "{1}");
    main.lstUIfe.selected = 0;
    lstUIfe_Click(program);
    EXPECT_TRUE(main.cmdEditFE.enabled && main.cmdDeleteFE.enabled && main.cmdTransferFE.enabled);
    EXPECT_FALSE(main.cmdSetFirefan.enabled);
    EXPECT_EQ(campaign.curUFE, nullptr);
}

TEST_F(UnitInfo, AddingUpElementsIsNoChangeOfWhatUnitsHold) {
    add_element(*add_below(key('a'), *unit), 2, 4, 'e');
    main.chkShowAllFE.value = true;
    const auto changes = HoldingChanges::count();
    show_unit_info(program, "{1}");
    EXPECT_EQ(main.lstUIfe.rows.size(), 1U);
    EXPECT_EQ(HoldingChanges::count(), changes) << "or each press would have all fans looked up anew";
}

TEST_F(UnitInfo, MarkInANameHidesTheKey) {
    add_below(key('a'), *unit)->name = "1###2";
    press_unit(*unit);
    main.lstUIchildunits.selected = 0;
    lstUIchildunits_DblClick(program);
    EXPECT_EQ(platform.texts(), Rows{"Error 5 when displaying unit info."});
    EXPECT_EQ(campaign.curUnit, unit);
    EXPECT_EQ(selected(), 0U) << "the selection is cleared first";
}

TEST_F(UnitInfo, PanelOfAUnitThatIsGoneShowsNoRowsOfTheOneBefore) {
    for (const auto select : {lstUIchildunits_DblClick, cmdSelectHQ_Click}) {
        platform.messages.clear();
        unit->force_elements.drop();
        unit->children.drop();
        add_element(*unit, 2, 4, 'e');
        add_below(key('a'), *unit);
        add_unit("{HQ}");
        unit->parent_ID = "{HQ}";
        press_unit(*unit);
        main.lstUIchildunits.selected = main.lstUIfe.selected = 0;
        lstUIfe_Click(program);
        ASSERT_TRUE(campaign.curUFE && main.cmdEditFE.enabled);
        campaign.colUnits->remove(key('a'));
        campaign.colUnits->remove("{HQ}");
        select(program);
        EXPECT_EQ(platform.texts(), Rows{"Error 5 when displaying unit info."});
        EXPECT_TRUE(main.lstUIchildunits.rows.empty() && main.lstUIfe.rows.empty());
        EXPECT_FALSE(main.cmdTransferFE.enabled || main.cmdEditFE.enabled || main.cmdDeleteFE.enabled ||
                     main.cmdSetFirefan.enabled);
        EXPECT_EQ(campaign.curUFE, nullptr);
        EXPECT_EQ(selected(), 0U);
    }
}

TEST_F(UnitInfo, CheckOfAccumulatedRowsShowsTheUnitAgain) {
    add_element(*add_below("{a}", *unit), 1, 7, 'B');
    show_unit_info(program, "{1}");
    main.chkShowAllFE.value = true;
    chkShowAllFE_Click(program);
    EXPECT_EQ(main.lstUIfe.rows.size(), 1U);
}

TEST_F(UnitInfo, WithAccumulatedRowsAGunOfItsOwnCannotBeTurned) {
    add_element(*unit, 2, 1, 'B')->FireFanAngle = 30;
    main.chkShowAllFE.value = true;
    show_unit_info(program, "{1}");
    main.lstUIfe.selected = 0;
    lstUIfe_Click(program);
    EXPECT_FALSE(main.cmdSetFirefan.enabled);
    EXPECT_EQ(main.lblUIFFangle.caption, "");
}
