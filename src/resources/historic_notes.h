// How each arm of the French, British and Prussian armies fought in June 1815: the note at the foot
// of the unit sheet, by army and number of type. Text in ASCII, at most 2,000 characters.
#pragma once

#include <array>
#include <string_view>

namespace varnstride {

struct HistoricNote {
    int army;  // 0 French, 1 British, 3 Prussian
    int type;
    std::string_view text;
};

constexpr std::string_view kFrenchHeavyNote =
    "Twelve regiments of cuirassiers wore back and breast plates; beside them rode two of "
    "carabiniers and the mounted grenadiers of the Guard. At Quatre Bras one brigade under "
    "Kellermann cut its way to the crossroads and had to flee from it again. At Mont St Jean "
    "nearly all of them climbed the ridge time after time and found squares there. Keep them for "
    "foot that is shaken, and never send them without guns.";

constexpr std::string_view kBritishHeavyNote =
    "The Life Guards, the Horse Guards Blue and the 1st Dragoon Guards made up the Household "
    "Brigade; three regiments of Dutch and Belgian carabiniers stood behind the centre. Big men on "
    "big horses without armour, led by officers who found it easier to begin a charge than to end "
    "one. The Household Brigade met the cuirassiers by La Haye Sainte and threw them back.";

constexpr std::string_view kPrussianHeavyNote =
    "No Prussian cuirassiers marched with Blucher in June; they had stayed at home. "
    "Where heavy horse is shown it stands for squadrons put together from the strongest men and "
    "mounts of the reserve cavalry. Few in number, they are worth most as a last reserve.";

constexpr auto kHistoricNotes = std::to_array<HistoricNote>({
    // French
    {0, 1,
     "The Leger wore blue from collar to gaiter and held itself better than the Line, though both "
     "drilled alike and both sent their voltigeurs ahead. Swarms of them opened every attack of "
     "this campaign. Men of the 1er Leger broke through the north gate of Hougoumont and did not "
     "come out again; the 13e was among those who took La Haye Sainte. They do best in woods, "
     "gardens and corn, and worst in the open when horsemen come."},
    {0, 2,
     "The Ligne was the body of the Army of the North: regiments of two or three field "
     "battalions, old soldiers back from prison camps beside conscripts of the last two years. It "
     "went forward in columns behind its skirmishers and hoped to deploy in time. D'Erlon's "
     "divisions, each packed battalion behind battalion, were caught by British horse before they "
     "could. Ardent in attack, it was quick to suspect its generals once a day went badly."},
    {0, 3,
     "Grenadiers and chasseurs of the Imperial Guard, Old and Middle. They were kept back to "
     "settle a battle: they broke the Prussian centre at Ligny in the dusk of the 16th, and two "
     "battalions cleared Plancenoit with the bayonet on the 18th. When the battalions that climbed "
     "the ridge that evening were thrown down it, the army saw it and dissolved."},
    {0, 4, "Light Dragoons Dismounted"},
    {0, 5, "Engineers / Sappers"},
    {0, 6, "Dragoons Dismounted"},
    {0, 7,
     "The Emperor led in person with Soult as chief of staff. Ney was given the left wing on the "
     "afternoon of the 15th and had no staff for it, Grouchy the right. Men like Gerard, Reille "
     "and Vandamme knew their trade, but orders crossed each other: on the 16th I Corps marched "
     "from one battle to the other and fought in neither. A general in the right place steadies a "
     "whole wing."},
    {0, 8,
     "Hussars and chasseurs a cheval scouted, screened and hunted down what was beaten. Domon's "
     "chasseurs first saw the Prussians come out of the woods by Lasne. They know how to break "
     "off; against good foot in good order they should."},
    {0, 9,
     "The lancers of the Line had been dragoons until 1811. Nothing was more feared by men on foot "
     "in loose order. At Quatre Bras Pire's lancers came through the tall rye upon battalions that "
     "took them for their own; at Mont St Jean Jacquinot's caught the British heavy horse on its "
     "way back, blown and scattered, and killed its general."},
    {0, 10, kFrenchHeavyNote},
    {0, 11,
     "Dragoons in green with brass helmets carried a musket as well as a long straight sword, and "
     "could hold a bridge on foot if they had to. Exelmans' corps of eight such regiments followed "
     "the Prussians with Grouchy to Wavre; others charged with Kellermann."},
    {0, 13, kFrenchHeavyNote},
    {0, 16,
     "A company of horse artillery had four 6-pounders and two howitzers, all its gunners mounted. "
     "It could keep up with cavalry, unlimber within canister range, and be gone. The horse "
     "companies of the Guard were the best gunners in either army."},
    {0, 17,
     "A foot company served six guns and two howitzers: 6-pounders with the divisions, 12-pounders "
     "in the reserves. The Emperor had been a gunner and massed his pieces: some eighty stood on "
     "the spur before La Belle Alliance. On the 18th wet ground held their wheels and swallowed "
     "their shot."},
    {0, 18, "Supply Wagon"},
    // British and their allies
    {1, 1,
     "Riflemen of the 95th and of the light battalions of the King's German Legion hit what they "
     "aimed at, slowly. Brunswick, Nassau and Dutch jagers fought beside them, and the 52nd could "
     "do a line battalion's work too. Baring's Germans held La Haye Sainte until they had no "
     "cartridges left. Screens of such men kept the voltigeurs off the ridge."},
    {1, 2,
     "British, Germans in British pay, Hanoverians, Brunswickers, Nassauers, Dutch and Belgians: "
     "one army of many coats. The British stood two deep behind a crest, gave one volley near "
     "enough to miss nothing, cheered and went in. Many of the others were young Landwehr or "
     "militia, sound behind a wall and unsafe in the open."},
    {1, 3,
     "Four battalions of Foot Guards in two brigades. They came up to Quatre Bras at the end of a "
     "long march and cleared most of Bossu Wood. On the 18th their light companies kept "
     "Hougoumont and shut its gate again; Maitland's men rose out of the corn before the last "
     "attack of the Imperial Guard."},
    {1, 4, "Light Dragoons Dismounted"},
    {1, 5, "Engineers / Sappers"},
    {1, 6, "Dragoons Dismounted"},
    {1, 7,
     "Wellington saw to everything himself and was wherever it was worst. Under him were the "
     "Prince of Orange, brave and very young, Hill, whom the men trusted, Uxbridge with the horse "
     "and Picton, shot at the head of his division. Almost every officer of the staff was hit on "
     "the 18th."},
    {1, 8,
     "Light dragoons and hussars, British and of the German Legion, with Dutch, Belgian and "
     "Brunswick squadrons. They covered the retreat through the thunderstorm of the 17th. Vivian "
     "and Vandeleur came over from the left on the evening of the 18th, still fresh, and turned a "
     "repulse into a rout."},
    {1, 9,
     "No British regiment bore the lance in 1815; it was taken up the year after, by those who had "
     "met it here. The lances of this army were those of the Brunswick uhlans, a single squadron."},
    {1, 10, kBritishHeavyNote},
    {1, 11,
     "The Union Brigade joined an English, a Scottish and an Irish regiment: Royals, Greys and "
     "Inniskillings. It rode through d'Erlon's columns, took two eagles and two thousand "
     "prisoners, rode on to the French guns, and lost half its men on the way back. Dragoons of "
     "the "
     "German Legion charged as hard and rallied sooner."},
    {1, 13, kBritishHeavyNote},
    {1, 15,
     "Whinyates' troop had rockets as well as 6-pounders, against the Duke's wish, who thought "
     "little of them. On the 18th they were fired along the ground through the corn by the "
     "crossroads. Nobody could tell where one would go; horses minded them most."},
    {1, 16,
     "Troops of the Royal Horse Artillery had five guns and a howitzer, many of them newly given "
     "9-pounders; Bull's had howitzers alone and dropped shells over Hougoumont into the wood. "
     "Mercer's gunners stayed with their pieces when told to run to the squares, and heaped up the "
     "cuirassiers before them."},
    {1, 17,
     "Foot companies of five 9-pounders and a howitzer stood along the crest. They were forbidden "
     "to waste shot on the enemy's guns and fired at troops alone; when the horse came they ran to "
     "the nearest square and ran back after it had gone."},
    {1, 18, "Supply Wagon"},
    // Prussian
    {3, 1,
     "The third battalion of every regiment was of fusiliers, used to woods and villages; every "
     "brigade had some, with a few companies of jagers and riflemen. They lined the hedges of "
     "St Amand and Ligny on the 16th and led the way out of the woods towards Plancenoit on the "
     "18th."},
    {3, 2,
     "Two battalions of musketeers to a regiment, many regiments new, put together from reserves, "
     "free corps and men who had been under other kings a year before. Columns went into the "
     "burning villages of Ligny one after another, and the survivors marched again two days later. "
     "The Landwehr beside them had less drill and no less will."},
    {3, 3,
     "The Royal Guard did not come up in time for these battles; it followed to Paris. Troops of "
     "this class stand for grenadier companies and other picked men whom a brigade kept together "
     "for the hardest task."},
    {3, 4,
     "Hussars and Landwehr troopers whose horses were dead or worn out fought on with the carbine, "
     "to hold a farm or a bridge until the foot came. They have little powder and no bayonets."},
    {3, 5, "Engineers / Sappers"},
    {3, 6,
     "Dragoons were horsemen first, but had been taught to use the carbine on foot. So they could "
     "keep a defile open for a retreat, as on the road from Gilly to Fleurus, or close it behind "
     "the last gun."},
    {3, 7,
     "Blucher was seventy-two and led from the front; at Ligny he lay under his dead horse while "
     "cuirassiers rode past. Gneisenau, who did his thinking, sent the beaten army to Wavre and "
     "not "
     "home. Zieten, Pirch, Thielmann and Bulow each led a corps, and Thielmann held Grouchy there "
     "while the others marched to the sound of the guns."},
    {3, 8,
     "Hussars, brown, black, green and blue, with many squadrons of Landwehr horse that had learnt "
     "to ride on the farm. The old regiments patrolled well and gave warning on the 15th. In "
     "the night after Mont St Jean they had a drummer on a horse with them and let nobody sleep."},
    {3, 9,
     "Uhlans and most of the Landwehr cavalry carried the lance. Lutzow led the 6th against a "
     "square "
     "of the Guard at Ligny and was taken. They are good against what is broken already, and cheap "
     "to lose where a delay must be bought."},
    {3, 10, kPrussianHeavyNote},
    {3, 11,
     "Dragoons in light blue were the steadiest of the Prussian horse. The Brandenburg regiment "
     "came "
     "up at the end at Gilly and covered foot that was being ridden down. Spread over "
     "the brigades they came too late or too few; kept together they could face French dragoons."},
    {3, 13, kPrussianHeavyNote},
    {3, 16,
     "Horse batteries had eight pieces, six 6-pounders and two howitzers. On the 18th they hurried "
     "ahead of IV Corps through the mud of the Lasne and opened fire on Lobau before the foot was "
     "up, "
     "so that Wellington should hear them."},
    {3, 17,
     "A foot battery had eight pieces: 6-pounders with the brigades, 12-pounders in the reserve. "
     "Along the slope by Bussy mill they fired over the villages at Ligny until their trains were "
     "empty. Batteries of both kinds pounded Plancenoit from the east."},
});

// The note of an arm; a blank for one that has none.
constexpr std::string_view HistoricNoteOf(int army, int type) {
    for (const HistoricNote& note : kHistoricNotes) {
        if (note.army == army && note.type == type) return note.text;
    }
    return " ";
}

}  // namespace varnstride
